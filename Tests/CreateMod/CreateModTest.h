#pragma once

#include "Interfaces/IPluginManager.h"
#include "SandboxTest.h"
#include "StandIn/Records/BuildToolRecord.h"
#include "StandIn/Records/NotificationRecord.h"
#include "StandIn/Records/TabRecord.h"
#include "UGCCreator.h"
#include "UGCPluginWizardDefinition.h"
#include <filesystem>
#include <memory>

// A sandbox project that carries the repository's Templates and Resources folders, with Slate up and
// the plugins discovered as at the editor's start.
class FCreateModTest : public FSandboxTest
{
protected:
	void SetUp() override
	{
		FSandboxTest::SetUp();
		StandIn::FWorld World = DefaultWorld();
		World.bSlateInitialized = true;
		ResetWorld(World);
		CopyProjectData();
		StandIn::DiscoverPlugins();
	}

	void CopyProjectData() const
	{
		namespace fs = std::filesystem;
		fs::create_directories(Host("C:/Work/Moravane"));
		fs::copy(TEMPLATES_DIR, Host("C:/Work/Moravane/Templates"), fs::copy_options::recursive);
		fs::copy(RESOURCES_DIR, Host("C:/Work/Moravane/Resources"), fs::copy_options::recursive);
	}

	static std::string RepositoryFile(const std::string& RelativePath) { return ReadAll(std::string(REPOSITORY_DIR) + "/" + RelativePath); }

	// The tab records of the journal, in order.
	static std::vector<const StandIn::FTabRecord*> TabRecords() { return StandIn::JournalRecords<StandIn::FTabRecord>(); }

	// Every widget below (and including) the root whose SNew type is the given one, depth first.
	static std::vector<TSharedRef<SWidget>> FindWidgets(const TSharedRef<SWidget>& Root, const std::string& Type)
	{
		std::vector<TSharedRef<SWidget>> Found;
		if (StandIn::WidgetType(Root) == Type)
		{
			Found.push_back(Root);
		}
		for (const StandIn::FChildSlot& Child : StandIn::ChildSlots(Root))
		{
			for (const TSharedRef<SWidget>& Widget : FindWidgets(Child.Widget, Type))
			{
				Found.push_back(Widget);
			}
		}
		return Found;
	}

	static std::vector<std::string> Texts(const std::vector<FText>& Items)
	{
		std::vector<std::string> Result;
		for (const FText& Item : Items)
		{
			Result.push_back(StandIn::ToUtf8(Item.ToString()));
		}
		return Result;
	}
};

// The wizard of an opened "Create New Mod" tab, by the widgets a person sees in it.
struct FWizard
{
	TSharedRef<SWidget> NameBox;
	TSharedRef<SWidget> TemplateList;
	TSharedRef<SWidget> CreateButton;
};
