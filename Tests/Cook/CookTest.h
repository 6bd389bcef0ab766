#pragma once

#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Interfaces/IPluginManager.h"
#include "SandboxTest.h"
#include "StandIn/BackgroundTasks.h"
#include "StandIn/Records/SavePromptRecord.h"
#include "StandIn/Records/UatTaskRecord.h"
#include "Styling/SlateStyleRegistry.h"
#include "UGCEditorCommands.h"
#include "UGCEditorStyle.h"
#include "UGCPackager.h"

// The cook command as the module sets it up: its command set and style set registered, one packager owned
// by the module.
class FCookTest : public FSandboxTest
{
protected:
	void SetUp() override
	{
		FSandboxTest::SetUp();
		// The install's automation tool, which prints the arguments it receives.
		WriteFile("C:/Work/Engine/Build/BatchFiles/RunUAT.bat", "#!/bin/sh\nfor Argument in \"$@\"; do echo \"$Argument\"; done\n");
		std::filesystem::permissions(Host("C:/Work/Engine/Build/BatchFiles/RunUAT.bat"), std::filesystem::perms::owner_all);
		FUGCEditorStyle::Initialize();
		FUGCEditorCommands::Register();
		Packager = MakeShared<FUGCPackager>();
	}

	void TearDown() override
	{
		StandIn::WaitForBackgroundTasks();
		Packager.Reset();
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

	// A plugin descriptor as the editor's wizard writes it.
	void WritePlugin(const std::string& DescriptorPath) const
	{
		WriteFile(DescriptorPath, "{\n\t\"FileVersion\": 3,\n\t\"Version\": 1,\n\t\"VersionName\": \"1.0\",\n\t\"FriendlyName\": \"Route\",\n\t\"Category\": \"Other\",\n\t\"CanContainContent\": true\n}\n");
	}

	// The toolbar's "Cook Mod" drop-down, opened.
	TSharedRef<SWidget> OpenDropDown()
	{
		return Packager->GeneratePackageMenuContent();
	}

	// The main menu's "Cook Mod" sub-menu, opened: the level editor builds it with the module's own command
	// list, which maps none of the plugin commands.
	TSharedRef<SWidget> OpenSubMenu()
	{
		FMenuBuilder MenuBuilder(true, ModuleCommandList);
		Packager->FillPackageSubMenu(MenuBuilder);
		return MenuBuilder.MakeWidget();
	}

	static std::vector<std::string> EntryLabels(const TSharedRef<SWidget>& Menu)
	{
		std::vector<std::string> Labels;
		for (const StandIn::FMenuEntry& Entry : StandIn::MenuEntries(Menu))
		{
			if (Entry.Kind == StandIn::FMenuEntry::EKind::Entry)
			{
				Labels.push_back(StandIn::ToUtf8(Entry.Label.ToString()));
			}
		}
		return Labels;
	}

	// The commands of the binding context "UGCEditor" that are not the set's own three.
	static std::vector<std::string> PluginCommandNames()
	{
		TArray<TSharedPtr<FUICommandInfo>> Commands;
		FInputBindingManager::Get().GetCommandInfosFromContext(TEXT("UGCEditor"), Commands);
		std::vector<std::string> Names;
		for (const TSharedPtr<FUICommandInfo>& Command : Commands)
		{
			const std::string Name = StandIn::ToUtf8(Command->GetCommandName().ToString());
			if (Name.rfind("UGCEditorUGC_", 0) == 0)
			{
				Names.push_back(Name);
			}
		}
		return Names;
	}

	static std::vector<const StandIn::FSavePromptRecord*> SavePrompts()
	{
		return StandIn::JournalRecords<StandIn::FSavePromptRecord>();
	}

	static std::vector<const StandIn::FUatTaskRecord*> UatTasks()
	{
		return StandIn::JournalRecords<StandIn::FUatTaskRecord>();
	}

	// What the journal shows of a cook, in order: save prompts, message boxes and automation tasks.
	static std::vector<std::string> CookJournal()
	{
		std::vector<std::string> Lines;
		for (const std::shared_ptr<const StandIn::FJournalRecord>& Record : StandIn::Journal())
		{
			const std::string Line = Record->Describe();
			if (Line.rfind("Save ", 0) == 0 || Line.rfind("Message: ", 0) == 0 || Line.rfind("Automation task: ", 0) == 0)
			{
				Lines.push_back(Line);
			}
		}
		return Lines;
	}

	TSharedPtr<FUGCPackager> Packager;
	TSharedRef<FUICommandList> ModuleCommandList = MakeShared<FUICommandList>();
};
