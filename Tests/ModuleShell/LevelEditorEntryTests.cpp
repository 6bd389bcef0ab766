#include "Interfaces/IPluginManager.h"
#include "ModuleShellTest.h"
#include "StandIn/Records/MessageBoxRecord.h"
#include "StandIn/Records/TabRecord.h"

TEST_F(FModuleShellTest, MainMenuShowsCreateModTheCookModSubMenuAndDistributeAtFileProjectInThatOrder)
{
	LoadUGCEditor();

	EXPECT_EQ(Describe(StandIn::OpenLevelEditorMenu(TEXT("FileProject"))), (std::vector<std::string>{
																			   "entry | Create Mod | Create a new DLC package as a content plugin | UGCEditorStyle/UGCEditor.CreateUGCAction | ../../../Moravane/Resources/CreateUGC_64x.png 40x40",
																			   "sub-menu | Cook Mod | Share and distribute DLC | UGCEditorStyle/UGCEditor.PackageUGCAction | ../../../Moravane/Resources/PackageUGC_64x.png 40x40",
																			   "entry | Distribute | Generating important files and paking your DLC | UGCEditorStyle/UGCEditor.PakingUGCAction | ../../../Moravane/Resources/DistributeUGC_64x.png 40x40",
																		   }));
}

TEST_F(FModuleShellTest, ToolBarShowsTheSameThreeAtCompileWithCookModAsAComboButton)
{
	LoadUGCEditor();

	EXPECT_EQ(Describe(StandIn::OpenLevelEditorToolBar(TEXT("Compile"))), (std::vector<std::string>{
																			  "button | Create Mod | Create a new DLC package as a content plugin | UGCEditorStyle/UGCEditor.CreateUGCAction | ../../../Moravane/Resources/CreateUGC_64x.png 40x40",
																			  "combo | Cook Mod | Share and distribute DLC | UGCEditorStyle/UGCEditor.PackageUGCAction | ../../../Moravane/Resources/PackageUGC_64x.png 40x40",
																			  "button | Distribute | Generating important files and paking your DLC | UGCEditorStyle/UGCEditor.PakingUGCAction | ../../../Moravane/Resources/DistributeUGC_64x.png 40x40",
																		  }));
}

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

TEST_F(FModuleShellTest, ClickingTheCookModComboButtonOpensItsDropDown)
{
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", "{\"FileVersion\": 3, \"CanContainContent\": true}");
	StandIn::DiscoverPlugins();
	LoadUGCEditor();
	const TSharedRef<SWidget> ToolBar = StandIn::OpenLevelEditorToolBar(TEXT("Compile"));
	const size_t Mark = JournalMark();

	EXPECT_TRUE(StandIn::ClickMenuEntry(ToolBar, TEXT("Cook Mod")));

	// Opening the drop-down is what looks for the plugins it lists.
	EXPECT_EQ(StandIn::JournalLines(Mark), std::vector<std::string>{"LogTemp: Display: Adding MyRoute"});
}

TEST_F(FModuleShellTest, CookModDropDownIsBuiltAtEveryOpeningAndTheSubMenuShowsWhatItRegisteredLast)
{
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", "{\"FileVersion\": 3, \"CanContainContent\": true}");
	StandIn::DiscoverPlugins();
	LoadUGCEditor();
	const TSharedRef<SWidget> Menu = StandIn::OpenLevelEditorMenu(TEXT("FileProject"));
	const TSharedRef<SWidget> ToolBar = StandIn::OpenLevelEditorToolBar(TEXT("Compile"));

	const TSharedPtr<SWidget> SubMenuBefore = StandIn::OpenSubMenu(Menu, TEXT("Cook Mod"));
	const TSharedPtr<SWidget> DropDown = StandIn::OpenComboDropDown(ToolBar, TEXT("Cook Mod"));
	WriteFile("C:/Work/Moravane/Mods/Tram/Tram.uplugin", "{\"FileVersion\": 3, \"CanContainContent\": true}");
	StandIn::DiscoverPlugins();
	const TSharedPtr<SWidget> DropDownAgain = StandIn::OpenComboDropDown(ToolBar, TEXT("Cook Mod"));
	const TSharedPtr<SWidget> SubMenuAfter = StandIn::OpenSubMenu(Menu, TEXT("Cook Mod"));

	ASSERT_TRUE(SubMenuBefore.IsValid() && DropDown.IsValid() && DropDownAgain.IsValid() && SubMenuAfter.IsValid());
	EXPECT_TRUE(StandIn::MenuEntries(SubMenuBefore.ToSharedRef()).empty());
	EXPECT_EQ(StandIn::MenuEntries(DropDown.ToSharedRef()).size(), 2u);
	EXPECT_EQ(StandIn::MenuEntries(DropDownAgain.ToSharedRef()).size(), 3u);
	ASSERT_EQ(StandIn::MenuEntries(SubMenuAfter.ToSharedRef()).size(), 2u);
	EXPECT_EQ(Utf8(StandIn::MenuEntries(SubMenuAfter.ToSharedRef())[1].Label), "Tram");
}

TEST_F(FModuleShellTest, CreateModInTheMenuOpensTheCreateNewModTab)
{
	LoadUGCEditor();
	const size_t Mark = JournalMark();

	EXPECT_TRUE(StandIn::ClickMenuEntry(StandIn::OpenLevelEditorMenu(TEXT("FileProject")), TEXT("Create Mod")));

	const std::vector<std::string> Lines = StandIn::JournalLines(Mark);
	ASSERT_FALSE(Lines.empty());
	EXPECT_EQ(Lines[0], "Tab: Create New Mod (UGCPluginCreator) 800x600");
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
