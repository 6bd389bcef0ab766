#pragma once

#include "Framework/Docking/TabManager.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "SandboxTest.h"
#include "Styling/SlateBrush.h"
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

	static std::string Utf8(const FText& Text) { return StandIn::ToUtf8(Text.ToString()); }

	// An entry as a person reads it: kind, label, tooltip, icon and what the icon draws.
	static std::string Describe(const StandIn::FMenuEntry& Entry)
	{
		static const char* const Kinds[] = {"heading", "separator", "entry", "sub-menu", "button", "combo"};
		std::string Line = std::string(Kinds[(int)Entry.Kind]) + " | " + Utf8(Entry.Label) + " | " + Utf8(Entry.ToolTip) + " | " + StandIn::ToUtf8(Entry.IconStyleSetName.ToString()) + "/" + StandIn::ToUtf8(Entry.IconStyleName.ToString());
		if (Entry.IconBrush != nullptr)
		{
			const FVector2D Size = Entry.IconBrush->GetImageSize();
			Line += " | " + StandIn::ToUtf8(Entry.IconBrush->GetResourceName().ToString()) + " " + std::to_string((int)Size.X) + "x" + std::to_string((int)Size.Y);
		}
		return Line;
	}

	static std::vector<std::string> Describe(const TSharedRef<SWidget>& Menu)
	{
		std::vector<std::string> Lines;
		for (const StandIn::FMenuEntry& Entry : StandIn::MenuEntries(Menu))
		{
			Lines.push_back(Describe(Entry));
		}
		return Lines;
	}

	size_t JournalMark() const { return StandIn::Journal().size(); }
};
