#pragma once

#include "Framework/Docking/TabManager.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "SandboxTest.h"
#include "Styling/SlateStyleRegistry.h"
#include "UGCEditor.h"
#include "UGCEditorCommands.h"
#include "UGCEditorStyle.h"
#include <string>
#include <vector>

// What IMPLEMENT_MODULE exports from the module's binary.
extern "C" IModuleInterface* InitializeModule();

// The module as the editor loads it: by name through the module manager, on a world whose Slate is up so
// that the renderer's texture reload shows in the journal.
class FModuleShellTest : public FSandboxTest
{
protected:
	void SetUp() override
	{
		FSandboxTest::SetUp();
		StandIn::FWorld World = DefaultWorld();
		World.bSlateInitialized = true;
		ResetWorld(World);
		InstallStyleImages();
	}

	// The editor shuts the module down and destroys it at exit; so does every test that loaded it.
	void TearDown() override
	{
		FModuleManager::Get().UnloadModule(TEXT("UGCEditor"));
		FSandboxTest::TearDown();
	}

	static IModuleInterface* LoadUGCEditor() { return FModuleManager::Get().LoadModule(TEXT("UGCEditor")); }

	static FLevelEditorModule& LevelEditor() { return FModuleManager::LoadModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")); }

	static std::string TopLayerName() { return StandIn::ToUtf8(FPlatformFileManager::Get().GetPlatformFile().GetName()); }

	size_t JournalMark() const { return StandIn::Journal().size(); }
};
