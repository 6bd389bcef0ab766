#include "CookTest.h"
#include "Styling/StyleDefaults.h"

TEST_F(FCookTest, DropDownEntryShowsThePluginsNameAndFolderUnderTheShareHeadingWithAFolderIconThatDrawsNothingAndClosesTheMenu)
{
	WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	StandIn::DiscoverPlugins();

	const std::vector<StandIn::FMenuEntry> Entries = StandIn::MenuEntries(OpenDropDown());

	ASSERT_EQ(Entries.size(), 2u);
	EXPECT_EQ(Entries[0].Kind, StandIn::FMenuEntry::EKind::Heading);
	EXPECT_EQ(StandIn::ToUtf8(Entries[0].Label.ToString()), "Share...");
	EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetNamespace(Entries[0].Label).Get(TEXT(""))), "UGCPackager");
	EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetKey(Entries[0].Label).Get(TEXT(""))), "PackageUGC");
	EXPECT_EQ(Entries[1].Kind, StandIn::FMenuEntry::EKind::Entry);
	EXPECT_EQ(StandIn::ToUtf8(Entries[1].Label.ToString()), "MyRoute");
	EXPECT_EQ(StandIn::ToUtf8(Entries[1].ToolTip.ToString()), "../../../Moravane/Plugins/MyRoute");
	EXPECT_EQ(StandIn::ToUtf8(Entries[1].IconStyleSetName.ToString()), "UGCEditorStyle");
	EXPECT_EQ(StandIn::ToUtf8(Entries[1].IconStyleName.ToString()), "UGCEditor.Folder");
	EXPECT_EQ(Entries[1].IconBrush, FStyleDefaults::GetNoBrush());
	EXPECT_TRUE(Entries[1].bClosesMenuAfterSelection);
}

TEST_F(FCookTest, EachOpeningOfTheDropDownDropsTheCommandsOfTheOpeningBefore)
{
	WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	WritePlugin("C:/Work/Moravane/Plugins/Retired/Retired.uplugin");
	StandIn::DiscoverPlugins();
	OpenDropDown();
	const TSharedPtr<FUICommandInfo> First = FInputBindingManager::Get().FindCommandInContext(TEXT("UGCEditor"), TEXT("UGCEditorUGC_MyRoute"));

	// The editor restarted with one plugin removed and one added.
	std::filesystem::remove_all(Host("C:/Work/Moravane/Plugins/Retired"));
	WritePlugin("C:/Work/Moravane/Mods/Tram/Tram.uplugin");
	ResetWorld(DefaultWorld());
	StandIn::DiscoverPlugins();
	const TSharedRef<SWidget> Menu = OpenDropDown();

	EXPECT_EQ(EntryLabels(Menu), std::vector<std::string>({"MyRoute", "Tram"}));
	EXPECT_EQ(PluginCommandNames(), std::vector<std::string>({"UGCEditorUGC_MyRoute", "UGCEditorUGC_Tram"}));
	EXPECT_NE(FInputBindingManager::Get().FindCommandInContext(TEXT("UGCEditor"), TEXT("UGCEditorUGC_MyRoute")), First);
	// Registering a name that is still registered would have failed an ensure.
	EXPECT_EQ(LogLines(), std::vector<std::string>({"LogTemp: Display: Adding MyRoute", "LogTemp: Display: Adding Tram"}));
}

TEST_F(FCookTest, SubMenuIsEmptyUntilTheDropDownFirstOpensThoughItLooksThePluginsUp)
{
	WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	StandIn::DiscoverPlugins();

	const TSharedRef<SWidget> Menu = OpenSubMenu();

	EXPECT_TRUE(StandIn::MenuEntries(Menu).empty());
	EXPECT_TRUE(PluginCommandNames().empty());
	EXPECT_EQ(LogTempLines(), std::vector<std::string>({"LogTemp: Display: Adding MyRoute"}));
}

TEST_F(FCookTest, SubMenuShowsTheCommandsOfTheLastDropDownNotThePluginsFoundSince)
{
	WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	StandIn::DiscoverPlugins();
	OpenDropDown();
	WritePlugin("C:/Work/Moravane/Mods/Tram/Tram.uplugin");
	IPluginManager::Get().RefreshPluginsList();

	const std::vector<StandIn::FMenuEntry> Entries = StandIn::MenuEntries(OpenSubMenu());

	ASSERT_EQ(Entries.size(), 1u);
	EXPECT_EQ(StandIn::ToUtf8(Entries[0].Label.ToString()), "MyRoute");
	EXPECT_EQ(StandIn::ToUtf8(Entries[0].ToolTip.ToString()), "../../../Moravane/Plugins/MyRoute");
	EXPECT_EQ(StandIn::ToUtf8(Entries[0].IconStyleName.ToString()), "UGCEditor.Folder");
}

TEST_F(FCookTest, NoPackageablePluginLeavesBothMenusWithoutEntries)
{
	WriteFile("C:/Work/Engine/Plugins/Yak/Yak.uplugin", "{\"FileVersion\": 3, \"CanContainContent\": true}");
	StandIn::DiscoverPlugins();

	EXPECT_TRUE(EntryLabels(OpenDropDown()).empty());
	EXPECT_TRUE(EntryLabels(OpenSubMenu()).empty());
	EXPECT_TRUE(LogTempLines().empty());
	EXPECT_TRUE(MessageBoxTexts().empty());
}
