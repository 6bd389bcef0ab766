#include "CookTest.h"
#include "PluginDouble.h"

TEST_F(FCookTest, TaskForTheExamplePathsHasTheExactCommandLineTextsAndIcon)
{
	StandIn::FWorld World = DefaultWorld();
	World.LaunchDir = TEXT("D:/Work/");
	World.BaseDir = TEXT("D:/Work/Engine/Binaries/Win64/");
	World.ProjectFilePath = TEXT("D:/Work/Moravane/Moravane.uproject");
	ResetWorld(World);
	WritePlugin("D:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	StandIn::DiscoverPlugins();

	ASSERT_TRUE(StandIn::ClickMenuEntry(OpenDropDown(), TEXT("MyRoute")));

	const std::vector<const StandIn::FUatTaskRecord*> Tasks = UatTasks();
	ASSERT_EQ(Tasks.size(), 1u);
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->CommandLine), "BuildDLC -Project=\"D:/Work/Moravane/Moravane.uproject\" -PluginPath=\"D:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin\" -ue4exe=\"D:/Work/\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe -nocompile -TargetPlatform=WindowsNoEditor -dlcName=\"MyRoute\",\"MyRoute\" ");
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->PlatformDisplayName.ToString()), "Windows");
	EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetNamespace(Tasks[0]->PlatformDisplayName).Get(TEXT(""))), "UGCPackager");
	EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetKey(Tasks[0]->PlatformDisplayName).Get(TEXT(""))), "PlatformName_Windows");
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->TaskName.ToString()), "Cooking MyRoute");
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->TaskShortName.ToString()), "Cooking MyRoute");
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->IconResourceName.ToString()), "../../../Moravane/Resources/PackageUGC_64x.png");
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->ResultLocation), "");
}

TEST_F(FCookTest, TaskTakesTheLaunchFolderOnAnotherDriveAsTheEditorsRoot)
{
	StandIn::FWorld World = DefaultWorld();
	World.LaunchDir = TEXT("E:/Launch/");
	ResetWorld(World);
	WritePlugin("C:/Work/Moravane/Mods/Tram/Tram.uplugin");
	StandIn::DiscoverPlugins();

	ASSERT_TRUE(StandIn::ClickMenuEntry(OpenDropDown(), TEXT("Tram")));

	const std::vector<const StandIn::FUatTaskRecord*> Tasks = UatTasks();
	ASSERT_EQ(Tasks.size(), 1u);
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->CommandLine), "BuildDLC -Project=\"C:/Work/Moravane/Moravane.uproject\" -PluginPath=\"C:/Work/Moravane/Mods/Tram/Tram.uplugin\" -ue4exe=\"E:/Launch/\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe -nocompile -TargetPlatform=WindowsNoEditor -dlcName=\"Tram\",\"Tram\" ");
}

TEST_F(FCookTest, TaskNameIsLocalised)
{
	Translate("UGCPackager", "UGCEditor_PackagePluginTaskName", "Vaření {0}");
	WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	StandIn::DiscoverPlugins();

	ASSERT_TRUE(StandIn::ClickMenuEntry(OpenDropDown(), TEXT("MyRoute")));

	ASSERT_EQ(UatTasks().size(), 1u);
	EXPECT_EQ(StandIn::ToUtf8(UatTasks()[0]->TaskName.ToString()), "Vaření MyRoute");
	EXPECT_EQ(StandIn::ToUtf8(UatTasks()[0]->TaskShortName.ToString()), "Vaření MyRoute");
}

TEST_F(FCookTest, EachClickStartsATaskOfItsOwn)
{
	WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	WritePlugin("C:/Work/Moravane/Mods/Tram/Tram.uplugin");
	StandIn::DiscoverPlugins();
	const TSharedRef<SWidget> Menu = OpenDropDown();

	ASSERT_TRUE(StandIn::ClickMenuEntry(Menu, TEXT("Tram")));
	ASSERT_TRUE(StandIn::ClickMenuEntry(Menu, TEXT("MyRoute")));
	ASSERT_TRUE(StandIn::ClickMenuEntry(Menu, TEXT("Tram")));

	const std::vector<const StandIn::FUatTaskRecord*> Tasks = UatTasks();
	ASSERT_EQ(Tasks.size(), 3u);
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->TaskName.ToString()), "Cooking Tram");
	EXPECT_EQ(StandIn::ToUtf8(Tasks[1]->TaskName.ToString()), "Cooking MyRoute");
	EXPECT_EQ(StandIn::ToUtf8(Tasks[2]->TaskName.ToString()), "Cooking Tram");
}

TEST_F(FCookTest, SubMenuEntriesDoNothingInTheModulesCommandList)
{
	WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	StandIn::DiscoverPlugins();
	OpenDropDown();

	ASSERT_TRUE(StandIn::ClickMenuEntry(OpenSubMenu(), TEXT("MyRoute")));

	EXPECT_TRUE(UatTasks().empty());
}

TEST_F(FCookTest, TaskIsNamedAfterThePluginAndTheDlcAfterItsDescriptorFile)
{
	// Listed as "Listed" while its descriptor is Foo.uplugin, which discovery never produces.
	Packager->PackagePlugin(MakeShared<FTestPlugin>(TEXT("Listed"), TEXT("../../../Moravane/Plugins/Foo"), TEXT("../../../Moravane/Plugins/Foo/Foo.uplugin")));

	const std::vector<const StandIn::FUatTaskRecord*> Tasks = UatTasks();
	ASSERT_EQ(Tasks.size(), 1u);
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->TaskName.ToString()), "Cooking Listed");
	EXPECT_EQ(StandIn::ToUtf8(Tasks[0]->CommandLine), "BuildDLC -Project=\"C:/Work/Moravane/Moravane.uproject\" -PluginPath=\"C:/Work/Moravane/Plugins/Foo/Foo.uplugin\" -ue4exe=\"C:/Work/\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe -nocompile -TargetPlatform=WindowsNoEditor -dlcName=\"Foo\",\"Foo\" ");
}
