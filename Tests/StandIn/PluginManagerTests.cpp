#include "Interfaces/IPluginManager.h"
#include "Misc/PackageName.h"
#include "SandboxTest.h"
#include <nlohmann/json.hpp>

namespace
{
	std::string Descriptor(bool bCanContainContent = true, const std::string& Extra = "")
	{
		return std::string("{\n\t\"FileVersion\": 3,\n\t\"Version\": 1,\n\t\"FriendlyName\": \"Friendly\",\n\t\"Category\": \"Other\",\n\t\"CanContainContent\": ") + (bCanContainContent ? "true" : "false") + Extra + "\n}\n";
	}

	std::vector<std::string> DiscoveredNames()
	{
		std::vector<std::string> Names;
		for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
		{
			Names.push_back(Utf8(Plugin->GetName()));
		}
		return Names;
	}
}

class FPluginManagerTest : public FSandboxTest
{
};

TEST_F(FPluginManagerTest, EnginePluginsAreTheEnginesAndProjectPluginsAndModsTheProjectsWithRelativeFolders)
{
	WriteFile("C:/Work/Engine/Plugins/Editor/PluginBrowser/PluginBrowser.uplugin", Descriptor(false));
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", Descriptor());
	WriteFile("C:/Work/Moravane/Mods/OtherMod/OtherMod.uplugin", Descriptor());
	StandIn::DiscoverPlugins();

	const TSharedPtr<IPlugin> Engine = IPluginManager::Get().FindPlugin(TEXT("PluginBrowser"));
	const TSharedPtr<IPlugin> Route = IPluginManager::Get().FindPlugin(TEXT("MyRoute"));
	const TSharedPtr<IPlugin> Mod = IPluginManager::Get().FindPlugin(TEXT("OtherMod"));
	ASSERT_TRUE(Engine.IsValid() && Route.IsValid() && Mod.IsValid());
	EXPECT_EQ(Engine->GetType(), EPluginType::Engine);
	EXPECT_EQ(Engine->GetLoadedFrom(), EPluginLoadedFrom::Engine);
	EXPECT_EQ(Utf8(Engine->GetBaseDir()), "../../../Engine/Plugins/Editor/PluginBrowser");
	EXPECT_EQ(Utf8(Engine->GetDescriptorFileName()), "../../../Engine/Plugins/Editor/PluginBrowser/PluginBrowser.uplugin");
	EXPECT_EQ(Route->GetType(), EPluginType::Project);
	EXPECT_EQ(Route->GetLoadedFrom(), EPluginLoadedFrom::Project);
	EXPECT_EQ(Utf8(Route->GetBaseDir()), "../../../Moravane/Plugins/MyRoute");
	EXPECT_EQ(Utf8(Route->GetContentDir()), "../../../Moravane/Plugins/MyRoute/Content");
	EXPECT_EQ(Utf8(Route->GetMountedAssetPath()), "/MyRoute/");
	EXPECT_EQ(Mod->GetType(), EPluginType::Mod);
	EXPECT_EQ(Mod->GetLoadedFrom(), EPluginLoadedFrom::Project);
	EXPECT_EQ(Utf8(Mod->GetBaseDir()), "../../../Moravane/Mods/OtherMod");
}

TEST_F(FPluginManagerTest, AProjectBesideTheEngineFolderIsReachedOneLevelHigherAndOneOnAnotherDriveInFull)
{
	std::vector<std::string> BaseDirs;
	for (const std::string ProjectFolder : {"C:/Moravane", "D:/Proj"})
	{
		StandIn::FWorld World = DefaultWorld();
		World.ProjectFilePath = StandIn::FromUtf8(ProjectFolder + "/Moravane.uproject");
		ResetWorld(World);
		WriteFile(ProjectFolder + "/Plugins/MyRoute/MyRoute.uplugin", Descriptor());
		StandIn::DiscoverPlugins();
		const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("MyRoute"));
		BaseDirs.push_back(Plugin.IsValid() ? Utf8(Plugin->GetBaseDir()) : "not found");
	}

	EXPECT_EQ(BaseDirs, (std::vector<std::string>{"../../../../Moravane/Plugins/MyRoute", "D:/Proj/Plugins/MyRoute"}));
}

TEST_F(FPluginManagerTest, APluginIsNamedAfterItsDescriptorNotItsFolder)
{
	WriteFile("C:/Work/Moravane/Plugins/Routes/Northern Line/NorthernLine.uplugin", Descriptor());
	StandIn::DiscoverPlugins();

	EXPECT_EQ(DiscoveredNames(), std::vector<std::string>({"NorthernLine"}));
	EXPECT_FALSE(IPluginManager::Get().FindPlugin(TEXT("Northern Line")).IsValid());
	EXPECT_EQ(Utf8(IPluginManager::Get().FindPlugin(TEXT("NorthernLine"))->GetBaseDir()), "../../../Moravane/Plugins/Routes/Northern Line");
}

TEST_F(FPluginManagerTest, DiscoveryGoesEngineThenProjectThenModsThenAdditionalFolders)
{
	WriteFile("C:/Work/Moravane/Moravane.uproject", "{\"FileVersion\": 3, \"AdditionalPluginDirectories\": [\"C:/Shared/Extra\"]}");
	WriteFile("C:/Shared/Extra/Zeta/Zeta.uplugin", Descriptor());
	WriteFile("C:/Work/Moravane/Mods/Alpha/Alpha.uplugin", Descriptor());
	WriteFile("C:/Work/Moravane/Plugins/beta/beta.uplugin", Descriptor());
	WriteFile("C:/Work/Moravane/Plugins/Aardvark/Aardvark.uplugin", Descriptor());
	WriteFile("C:/Work/Engine/Plugins/Yak/Yak.uplugin", Descriptor());
	StandIn::DiscoverPlugins();

	// Within a folder, names come in the order Windows lists them: without regard to case.
	EXPECT_EQ(DiscoveredNames(), std::vector<std::string>({"Yak", "Aardvark", "beta", "Alpha", "Zeta"}));
}

TEST_F(FPluginManagerTest, AdditionalPluginDirectoriesAreExternalWithAbsoluteFolders)
{
	WriteFile("C:/Work/Moravane/Moravane.uproject", "{\"FileVersion\": 3, \"AdditionalPluginDirectories\": [\"../SharedPlugins\"]}");
	WriteFile("C:/Work/SharedPlugins/Signals/Signals.uplugin", Descriptor());
	StandIn::DiscoverPlugins();

	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("Signals"));
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_EQ(Plugin->GetType(), EPluginType::External);
	EXPECT_EQ(Plugin->GetLoadedFrom(), EPluginLoadedFrom::Project);
	EXPECT_EQ(Utf8(Plugin->GetBaseDir()), "C:/Work/SharedPlugins/Signals");
}

TEST_F(FPluginManagerTest, ASecondPluginOfTheSameNameIsIgnoredWithAWarning)
{
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", Descriptor());
	WriteFile("C:/Work/Moravane/Mods/myroute/myroute.uplugin", Descriptor());
	StandIn::DiscoverPlugins();

	EXPECT_EQ(DiscoveredNames(), std::vector<std::string>({"MyRoute"}));
	EXPECT_EQ(IPluginManager::Get().FindPlugin(TEXT("MYROUTE"))->GetType(), EPluginType::Project);
	EXPECT_EQ(LogLines(), std::vector<std::string>({"LogPluginManager: Warning: Plugin 'myroute' exists at '../../../Moravane/Plugins/MyRoute/MyRoute.uplugin' and '../../../Moravane/Mods/myroute/myroute.uplugin' - second location will be ignored"}));
}

TEST_F(FPluginManagerTest, AProjectCopyOfAnEnginePluginTakesItsPlace)
{
	WriteFile("C:/Work/Engine/Plugins/Alpha/Alpha.uplugin", Descriptor());
	WriteFile("C:/Work/Engine/Plugins/Shared/Shared.uplugin", Descriptor());
	WriteFile("C:/Work/Moravane/Plugins/Shared/Shared.uplugin", Descriptor());
	StandIn::DiscoverPlugins();

	EXPECT_EQ(DiscoveredNames(), std::vector<std::string>({"Alpha", "Shared"}));
	EXPECT_EQ(IPluginManager::Get().FindPlugin(TEXT("Shared"))->GetType(), EPluginType::Project);
	EXPECT_TRUE(LogLines().empty());
}

TEST_F(FPluginManagerTest, NothingIsDiscoveredUntilAskedAndAWorldResetForgetsIt)
{
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", Descriptor());
	EXPECT_TRUE(DiscoveredNames().empty());

	StandIn::DiscoverPlugins();
	ResetWorld(DefaultWorld());

	EXPECT_TRUE(DiscoveredNames().empty());
	FString Filename;
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/MyRoute/Maps/Main"), Filename));
}

TEST_F(FPluginManagerTest, AnUnreadableDescriptorIsReportedAndSkipped)
{
	WriteFile("C:/Work/Moravane/Plugins/Broken/Broken.uplugin", "{\"Version\": 1}");
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", Descriptor());
	StandIn::DiscoverPlugins();

	EXPECT_EQ(DiscoveredNames(), std::vector<std::string>({"MyRoute"}));
	EXPECT_EQ(MessageBoxTexts(), std::vector<std::string>({"File does not have a valid 'FileVersion' number. (C:/Work/Moravane/Plugins/Broken/Broken.uplugin)"}));
}

TEST_F(FPluginManagerTest, DescriptorsAreReadFromTheFile)
{
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", Descriptor(false, ",\n\t\"Modules\": [{\"Name\": \"MyRouteCode\", \"Type\": \"Editor\", \"LoadingPhase\": \"PostEngineInit\"}]"));
	StandIn::DiscoverPlugins();

	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("MyRoute"));
	ASSERT_TRUE(Plugin.IsValid());
	const FPluginDescriptor& Read = Plugin->GetDescriptor();
	EXPECT_EQ(Utf8(Read.FriendlyName), "Friendly");
	EXPECT_EQ(Utf8(Read.Category), "Other");
	EXPECT_EQ(Read.Version, 1);
	EXPECT_FALSE(Plugin->CanContainContent());
	ASSERT_EQ(Read.Modules.Num(), 1);
	EXPECT_EQ(Utf8(Read.Modules[0].Name.ToString()), "MyRouteCode");
	EXPECT_EQ(Read.Modules[0].Type, EHostType::Editor);
	EXPECT_EQ(Read.Modules[0].LoadingPhase, ELoadingPhase::PostEngineInit);
}

TEST_F(FPluginManagerTest, UpdateDescriptorRewritesTheFileAndTheCopyInMemory)
{
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", Descriptor(true, ",\n\t\"Description\": \"Trains\""));
	StandIn::DiscoverPlugins();
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("MyRoute"));
	ASSERT_TRUE(Plugin.IsValid());

	FPluginDescriptor Changed = Plugin->GetDescriptor();
	Changed.Category = TEXT("DLC");
	FText FailReason;
	EXPECT_TRUE(Plugin->UpdateDescriptor(Changed, FailReason));

	EXPECT_EQ(Utf8(Plugin->GetDescriptor().Category), "DLC");
	const nlohmann::json Written = nlohmann::json::parse(ReadFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin"));
	EXPECT_EQ(Written["Category"], "DLC");
	EXPECT_EQ(Written["Description"], "Trains");
	EXPECT_EQ(Written["FriendlyName"], "Friendly");
	EXPECT_EQ(Written["CanContainContent"], true);
	EXPECT_EQ(Written["FileVersion"], 3);
}

TEST_F(FPluginManagerTest, EnabledPluginContentIsMountedBesideGameAndEngine)
{
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", Descriptor());
	StandIn::DiscoverPlugins();

	FString Filename;
	ASSERT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/MyRoute/Maps/Main"), Filename));
	EXPECT_EQ(Utf8(Filename), "../../../Moravane/Plugins/MyRoute/Content/Maps/Main");
	ASSERT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/MyRoute/Maps/Main"), Filename, TEXT(".umap")));
	EXPECT_EQ(Utf8(Filename), "../../../Moravane/Plugins/MyRoute/Content/Maps/Main.umap");
	ASSERT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Game/Maps/Hub"), Filename));
	EXPECT_EQ(Utf8(Filename), "../../../Moravane/Content/Maps/Hub");
	ASSERT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Engine/Basic"), Filename));
	EXPECT_EQ(Utf8(Filename), "../../../Engine/Content/Basic");
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Nowhere/Maps/Main"), Filename));
}

TEST_F(FPluginManagerTest, PluginsWithoutContentOrDisabledAreNotMounted)
{
	WriteFile("C:/Work/Moravane/Plugins/CodeOnly/CodeOnly.uplugin", Descriptor(false));
	WriteFile("C:/Work/Moravane/Plugins/Off/Off.uplugin", Descriptor(true, ",\n\t\"EnabledByDefault\": false"));
	WriteFile("C:/Work/Moravane/Plugins/Listed/Listed.uplugin", Descriptor());
	WriteFile("C:/Work/Moravane/Moravane.uproject", "{\"FileVersion\": 3, \"Plugins\": [{\"Name\": \"Listed\", \"Enabled\": false}]}");
	StandIn::DiscoverPlugins();

	FString Filename;
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/CodeOnly/A"), Filename));
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Off/A"), Filename));
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Listed/A"), Filename));
	EXPECT_FALSE(IPluginManager::Get().FindPlugin(TEXT("Off"))->IsEnabled());
	EXPECT_FALSE(IPluginManager::Get().FindPlugin(TEXT("Listed"))->IsEnabled());
	EXPECT_TRUE(IPluginManager::Get().FindPlugin(TEXT("CodeOnly"))->IsEnabled());
}

TEST_F(FPluginManagerTest, ANewPluginIsFoundAfterARefreshAndMountedWhenAsked)
{
	WriteFile("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin", Descriptor());
	StandIn::DiscoverPlugins();
	WriteFile("C:/Work/Moravane/Plugins/NewMod/NewMod.uplugin", Descriptor());

	EXPECT_FALSE(IPluginManager::Get().FindPlugin(TEXT("NewMod")).IsValid());
	IPluginManager::Get().RefreshPluginsList();
	ASSERT_TRUE(IPluginManager::Get().FindPlugin(TEXT("NewMod")).IsValid());
	EXPECT_FALSE(IPluginManager::Get().FindPlugin(TEXT("NewMod"))->IsEnabled());
	EXPECT_EQ(DiscoveredNames(), std::vector<std::string>({"MyRoute", "NewMod"}));

	IPluginManager::Get().MountNewlyCreatedPlugin(TEXT("NewMod"));
	EXPECT_TRUE(IPluginManager::Get().FindPlugin(TEXT("NewMod"))->IsEnabled());
	FString Filename;
	ASSERT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/NewMod/Maps/Main"), Filename));
	EXPECT_EQ(Utf8(Filename), "../../../Moravane/Plugins/NewMod/Content/Maps/Main");
}
