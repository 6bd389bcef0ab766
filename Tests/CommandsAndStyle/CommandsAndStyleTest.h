#pragma once

#include "Framework/Commands/InputBindingManager.h"
#include "PluginDouble.h"
#include "SandboxTest.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "UGCEditorCommands.h"
#include "UGCEditorStyle.h"

// The command set and the style set are process-wide; each test leaves neither behind.
class FCommandsAndStyleTest : public FSandboxTest
{
protected:
	void TearDown() override
	{
		if (FUGCEditorCommands::IsRegistered())
		{
			FUGCEditorCommands::Unregister();
		}
		if (FSlateStyleRegistry::FindSlateStyle(FUGCEditorStyle::GetStyleSetName()) != nullptr)
		{
			FUGCEditorStyle::Shutdown();
		}
		FSandboxTest::TearDown();
	}
};
