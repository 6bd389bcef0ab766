#include "CookTest.h"
#include "PluginDescriptor.h"

namespace
{
	// A plugin listed under another name than its descriptor's, which the editor's own plugin manager never
	// makes; only the cook's task reads it.
	class FRenamedPlugin : public IPlugin
	{
	public:
		virtual const FString& GetName() const override { return Name; }
		virtual const FString& GetDescriptorFileName() const override { return DescriptorFileName; }
		virtual FString GetBaseDir() const override { return TEXT("../../../Moravane/Plugins/Foo"); }
		virtual FString GetContentDir() const override { return TEXT("../../../Moravane/Plugins/Foo/Content"); }
		virtual FString GetMountedAssetPath() const override { return TEXT("/Listed/"); }
		virtual EPluginType GetType() const override { return EPluginType::Project; }
		virtual bool IsEnabled() const override { return true; }
		virtual bool CanContainContent() const override { return true; }
		virtual EPluginLoadedFrom GetLoadedFrom() const override { return EPluginLoadedFrom::Project; }
		virtual const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }
		virtual bool UpdateDescriptor(const FPluginDescriptor& NewDescriptor, FText& OutFailReason) override { return false; }

	private:
		FString Name = TEXT("Listed");
		FString DescriptorFileName = TEXT("../../../Moravane/Plugins/Foo/Foo.uplugin");
		FPluginDescriptor Descriptor;
	};
}

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
	EXPECT_EQ(Tasks[0]->CommandLine, TEXT("BuildDLC -Project=\"D:/Work/Moravane/Moravane.uproject\" -PluginPath=\"D:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin\" -ue4exe=\"D:/Work/\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe -nocompile -TargetPlatform=WindowsNoEditor -dlcName=\"MyRoute\",\"MyRoute\" "));
	EXPECT_EQ(Tasks[0]->PlatformDisplayName.ToString(), TEXT("Windows"));
	EXPECT_EQ(FTextInspector::GetNamespace(Tasks[0]->PlatformDisplayName).Get(TEXT("")), TEXT("UGCPackager"));
	EXPECT_EQ(FTextInspector::GetKey(Tasks[0]->PlatformDisplayName).Get(TEXT("")), TEXT("PlatformName_Windows"));
	EXPECT_EQ(Tasks[0]->TaskName.ToString(), TEXT("Cooking MyRoute"));
	EXPECT_EQ(Tasks[0]->TaskShortName.ToString(), TEXT("Cooking MyRoute"));
	EXPECT_EQ(Tasks[0]->IconResourceName.ToString(), TEXT("../../../Moravane/Resources/PackageUGC_64x.png"));
	EXPECT_EQ(Tasks[0]->ResultLocation, TEXT(""));
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
	EXPECT_EQ(Tasks[0]->CommandLine, TEXT("BuildDLC -Project=\"C:/Work/Moravane/Moravane.uproject\" -PluginPath=\"C:/Work/Moravane/Mods/Tram/Tram.uplugin\" -ue4exe=\"E:/Launch/\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe -nocompile -TargetPlatform=WindowsNoEditor -dlcName=\"Tram\",\"Tram\" "));
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
	EXPECT_EQ(Tasks[0]->TaskName.ToString(), TEXT("Cooking Tram"));
	EXPECT_EQ(Tasks[1]->TaskName.ToString(), TEXT("Cooking MyRoute"));
	EXPECT_EQ(Tasks[2]->TaskName.ToString(), TEXT("Cooking Tram"));
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
	Packager->PackagePlugin(MakeShared<FRenamedPlugin>());

	const std::vector<const StandIn::FUatTaskRecord*> Tasks = UatTasks();
	ASSERT_EQ(Tasks.size(), 1u);
	EXPECT_EQ(Tasks[0]->TaskName.ToString(), TEXT("Cooking Listed"));
	EXPECT_EQ(Tasks[0]->CommandLine, TEXT("BuildDLC -Project=\"C:/Work/Moravane/Moravane.uproject\" -PluginPath=\"C:/Work/Moravane/Plugins/Foo/Foo.uplugin\" -ue4exe=\"C:/Work/\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe -nocompile -TargetPlatform=WindowsNoEditor -dlcName=\"Foo\",\"Foo\" "));
}
