#include "DistributionTestSupport.h"

using FCookedPluginDiscoveryTest = FDistributionTest;

TEST_F(FCookedPluginDiscoveryTest, FindsOnlyPluginsCookedUnderTheirOwnNameInWalkOrder)
{
	Cook("Zulu");
	Cook("alpha");
	WriteFile("C:/Work/Moravane/Plugins/Half/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/Half/Content/Maps/Route.umap", "no registry yet");
	WriteFile("C:/Work/Moravane/Plugins/Raw/Raw.uplugin", "{}");
	WriteFile("C:/Work/Moravane/Plugins/Renamed/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/Other/Content/Metadata/DevelopmentAssetRegistry.bin", "cooked under another name");
	WriteFile("C:/Work/Moravane/Plugins/Notes.txt", "a plain file");

	const TArray<FString> Found = MakeShared<FUGCPaking>()->FindCookedPlugins();

	EXPECT_EQ(ToUtf8Strings(Found), (std::vector<std::string>{"alpha", "Zulu"}));
	EXPECT_EQ(LogTempLines(), (std::vector<std::string>{
								  "LogTemp: Scanning for plugins in: C:/Work/Moravane/Plugins/",
								  "LogTemp: Found plugin folder: alpha",
								  "LogTemp: Found plugin folder: Half",
								  "LogTemp: Found plugin folder: Raw",
								  "LogTemp: Found plugin folder: Renamed",
								  "LogTemp: Found plugin folder: Zulu",
							  }));
}

TEST_F(FCookedPluginDiscoveryTest, AnEmptyOrMissingPluginsFolderGivesNoPlugins)
{
	std::filesystem::create_directories(Host("C:/Work/Moravane/Plugins"));
	EXPECT_EQ(MakeShared<FUGCPaking>()->FindCookedPlugins().Num(), 0);
	EXPECT_EQ(LogTempLines(), (std::vector<std::string>{"LogTemp: Scanning for plugins in: C:/Work/Moravane/Plugins/"}));

	std::filesystem::remove(Host("C:/Work/Moravane/Plugins"));
	ResetWorld(DefaultWorld());
	EXPECT_EQ(MakeShared<FUGCPaking>()->FindCookedPlugins().Num(), 0);
	EXPECT_EQ(LogTempLines(), (std::vector<std::string>{
								  "LogTemp: Scanning for plugins in: C:/Work/Moravane/Plugins/",
								  "LogTemp: Error: Plugin directory does not exist: C:/Work/Moravane/Plugins/",
							  }));
}

TEST_F(FCookedPluginDiscoveryTest, LooksInTheProjectTheEditorWasStartedWith)
{
	StandIn::FWorld World = DefaultWorld();
	World.ProjectFilePath = TEXT("D:/Mods/Moravane/Moravane.uproject");
	ResetWorld(World);
	WriteFile("D:/Mods/Moravane/Plugins/Route/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/Route/Content/Metadata/DevelopmentAssetRegistry.bin", "dev");

	EXPECT_EQ(ToUtf8Strings(MakeShared<FUGCPaking>()->FindCookedPlugins()), (std::vector<std::string>{"Route"}));
	EXPECT_EQ(LogTempLines().front(), "LogTemp: Scanning for plugins in: D:/Mods/Moravane/Plugins/");
}
