#include "CreateModTest.h"
#include "Framework/Docking/TabManager.h"
#include "StandIn/WindowMenu.h"
#include "Widgets/Docking/SDockTab.h"

using FCreateModTabTest = FCreateModTest;

TEST_F(FCreateModTabTest, TheFirstCommandOpensTheTabInANewWindowOfEightHundredBySixHundred)
{
	FUGCCreator Creator;
	Creator.OpenCreateModTab(false);

	EXPECT_EQ(StandIn::JournalLines(), std::vector<std::string>({"Tab: Create New Mod (UGCPluginCreator) 800x600"}));
	ASSERT_EQ(TabRecords().size(), 1u);
	EXPECT_EQ(TabRecords()[0]->Tab->GetTabRole(), ETabRole::NomadTab);
	EXPECT_EQ(FindWidgets(TabRecords()[0]->Tab, "SNewPluginWizard").size(), 1u);
}

TEST_F(FCreateModTabTest, ASecondCommandBringsTheOpenTabToTheFront)
{
	FUGCCreator Creator;
	Creator.OpenCreateModTab(false);
	Creator.OpenCreateModTab(false);

	EXPECT_EQ(StandIn::JournalLines(), std::vector<std::string>({"Tab: Create New Mod (UGCPluginCreator) 800x600", "Tab to front: Create New Mod (UGCPluginCreator)"}));
	EXPECT_EQ(&TabRecords()[1]->Tab.Get(), &TabRecords()[0]->Tab.Get());
}

TEST_F(FCreateModTabTest, TheTabIsRegisteredHiddenFromTheWindowMenu)
{
	FUGCCreator Creator;

	ASSERT_TRUE(FGlobalTabmanager::Get()->TryInvokeTab(FName(TEXT("UGCPluginCreator"))).IsValid());
	EXPECT_TRUE(StandIn::WindowMenuTabs().empty());
}

TEST_F(FCreateModTabTest, TheTabsTitleIsLocalised)
{
	Translate("FUGCCreator", "NewUGCTabHeader", "Nový mod");
	FUGCCreator Creator;
	Creator.OpenCreateModTab(false);

	EXPECT_EQ(StandIn::JournalLines(), std::vector<std::string>({"Tab: Nový mod (UGCPluginCreator) 800x600"}));
}

TEST_F(FCreateModTabTest, ThePluginBrowserMessageIsLocalised)
{
	Translate("FUGCCreator", "PluginBrowserDisabled", "Bez prohlížeče pluginů nelze vytvořit mod.");
	StandIn::FWorld World = StandIn::GetWorld();
	World.bPluginBrowserLoaded = false;
	ResetWorld(World);
	FUGCCreator Creator;
	Creator.OpenCreateModTab(false);

	EXPECT_EQ(MessageBoxTexts(), std::vector<std::string>({"Bez prohlížeče pluginů nelze vytvořit mod."}));
}

TEST_F(FCreateModTabTest, TheTabIsGoneOnceTheCreatorIs)
{
	{
		FUGCCreator Creator;
	}
	EXPECT_FALSE(FGlobalTabmanager::Get()->TryInvokeTab(FName(TEXT("UGCPluginCreator"))).IsValid());
	EXPECT_TRUE(StandIn::Journal().empty());
}

TEST_F(FCreateModTabTest, WithoutThePluginBrowserASilentCommandDoesNothing)
{
	StandIn::FWorld World = DefaultWorld();
	World.bPluginBrowserLoaded = false;
	ResetWorld(World);
	FUGCCreator Creator;
	Creator.OpenCreateModTab(true);

	EXPECT_TRUE(StandIn::Journal().empty());
}

TEST_F(FCreateModTabTest, SpawningTheTabWithoutThePluginBrowserStopsTheEditor)
{
	StandIn::FWorld World = DefaultWorld();
	World.bPluginBrowserLoaded = false;
	ResetWorld(World);
	FUGCCreator Creator;

	EXPECT_DEATH(Creator.SpawnCreateModTab(FSpawnTabArgs(TSharedPtr<SWindow>(), FTabId(FName(TEXT("UGCPluginCreator"))))), "");
}

TEST_F(FCreateModTabTest, EachTabGetsAFreshSelection)
{
	FUGCCreator Creator;
	Creator.OpenCreateModTab(false);
	const TSharedRef<SWidget> FirstList = FindWidgets(TabRecords()[0]->Tab, "SPluginTemplateList").at(0);
	ASSERT_TRUE(StandIn::SelectListRow(FirstList, TEXT("Route")));
	TSharedRef<SDockTab> FirstTab = TabRecords()[0]->Tab;
	FirstTab->RequestCloseTab();

	Creator.OpenCreateModTab(false);

	ASSERT_EQ(TabRecords().size(), 3u);
	EXPECT_EQ(TabRecords()[1]->Kind, StandIn::FTabRecord::EKind::Closed);
	const TSharedRef<SWidget> SecondList = FindWidgets(TabRecords()[2]->Tab, "SPluginTemplateList").at(0);
	EXPECT_TRUE(StandIn::Paint(SecondList).SelectedListRows.empty());
}
