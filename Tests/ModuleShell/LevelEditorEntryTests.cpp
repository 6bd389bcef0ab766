#include "Interfaces/IPluginManager.h"
#include "ModuleShellTest.h"
#include "StandIn/Records/MessageBoxRecord.h"
#include "StandIn/Records/TabRecord.h"

TEST_F(FModuleShellTest, NothingOfTheModuleShowsAtOtherHooks)
{
	LoadUGCEditor();

	EXPECT_TRUE(StandIn::MenuEntries(StandIn::OpenLevelEditorMenu(TEXT("Compile"))).empty());
	EXPECT_TRUE(StandIn::MenuEntries(StandIn::OpenLevelEditorToolBar(TEXT("FileProject"))).empty());
}

TEST_F(FModuleShellTest, CookModSubMenuOpensOnHoverAndChoosingInItClosesTheMenu)
{
	LoadUGCEditor();

	const StandIn::FMenuEntry SubMenu = StandIn::MenuEntries(StandIn::OpenLevelEditorMenu(TEXT("FileProject"))).at(1);

	EXPECT_EQ(SubMenu.Kind, StandIn::FMenuEntry::EKind::SubMenu);
	EXPECT_FALSE(SubMenu.bOpensOnClick);
	EXPECT_TRUE(SubMenu.bClosesMenuAfterSelection);
}

TEST_F(FModuleShellTest, CookModComboButtonIsNotASimpleComboBoxAndHasNoActionOfItsOwn)
{
	LoadUGCEditor();

	const StandIn::FMenuEntry Combo = StandIn::MenuEntries(StandIn::OpenLevelEditorToolBar(TEXT("Compile"))).at(1);

	EXPECT_EQ(Combo.Kind, StandIn::FMenuEntry::EKind::ComboButton);
	EXPECT_FALSE(Combo.bIsSimpleComboBox);
	EXPECT_FALSE(Combo.bHasOwnAction);
}

TEST_F(FModuleShellTest, CookModTextsKeepTheirOwnKeysInTheMenuAndOnTheToolBar)
{
	LoadUGCEditor();

	const StandIn::FMenuEntry Menu = StandIn::MenuEntries(StandIn::OpenLevelEditorMenu(TEXT("FileProject"))).at(1);
	const StandIn::FMenuEntry ToolBar = StandIn::MenuEntries(StandIn::OpenLevelEditorToolBar(TEXT("Compile"))).at(1);

	EXPECT_EQ(FTextInspector::GetNamespace(Menu.Label).Get(TEXT("")), TEXT("FUGCEditorModule"));
	EXPECT_EQ(FTextInspector::GetKey(Menu.Label).Get(TEXT("")), TEXT("PackageUGCMenu_Label"));
	EXPECT_EQ(FTextInspector::GetKey(Menu.ToolTip).Get(TEXT("")), TEXT("PackageUGCMenu_Tooltip"));
	EXPECT_EQ(FTextInspector::GetNamespace(ToolBar.Label).Get(TEXT("")), TEXT("FUGCEditorModule"));
	EXPECT_EQ(FTextInspector::GetKey(ToolBar.Label).Get(TEXT("")), TEXT("PackageUGC_Label"));
	EXPECT_EQ(FTextInspector::GetKey(ToolBar.ToolTip).Get(TEXT("")), TEXT("PackageUGC_Tooltip"));
}

TEST_F(FModuleShellTest, CreateModOnTheToolBarWithThePluginBrowserOffTellsTheUser)
{
	StandIn::FWorld World = DefaultWorld();
	World.bPluginBrowserLoaded = false;
	ResetWorld(World);
	LoadUGCEditor();
	const size_t Mark = JournalMark();

	EXPECT_TRUE(StandIn::ClickMenuEntry(StandIn::OpenLevelEditorToolBar(TEXT("Compile")), TEXT("Create Mod")));

	EXPECT_EQ(StandIn::JournalLines(Mark), std::vector<std::string>{"Message: Creating a game mod requires the use of the Plugin Browser, but it is currently disabled."});
}

TEST_F(FModuleShellTest, DistributeInTheMenuAndOnTheToolBarEachOpenAPakingDialog)
{
	LoadUGCEditor();

	StandIn::ClickMenuEntry(StandIn::OpenLevelEditorMenu(TEXT("FileProject")), TEXT("Distribute"));
	StandIn::ClickMenuEntry(StandIn::OpenLevelEditorToolBar(TEXT("Compile")), TEXT("Distribute"));

	const std::vector<const StandIn::FWindowRecord*> Windows = StandIn::JournalRecords<StandIn::FWindowRecord>();
	ASSERT_EQ(Windows.size(), 2u);
	EXPECT_EQ(Utf8(Windows[0]->Title), "Paking Dialog");
	EXPECT_EQ(Utf8(Windows[1]->Title), "Paking Dialog");
	EXPECT_NE(&Windows[0]->Window.Get(), &Windows[1]->Window.Get());
}
