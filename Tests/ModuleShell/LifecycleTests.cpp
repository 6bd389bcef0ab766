#include "../PlatformFileLayer/LowerLayerDouble.h"
#include "Logging/LogScopedVerbosityOverride.h"
#include "ModuleShellTest.h"
#include "StandIn/Records/LogRecord.h"
#include <memory>

TEST_F(FModuleShellTest, ExportedEntryPointMakesANewModuleThatHasStartedNothing)
{
	const std::unique_ptr<IModuleInterface> First(InitializeModule());
	const std::unique_ptr<IModuleInterface> Second(InitializeModule());

	ASSERT_NE(dynamic_cast<FUGCEditorModule*>(First.get()), nullptr);
	EXPECT_NE(First.get(), Second.get());
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(FUGCEditorStyle::GetStyleSetName()), nullptr);
	EXPECT_FALSE(FUGCEditorCommands::IsRegistered());
	EXPECT_EQ(TopLayerName(), StandIn::ToUtf8(IPlatformFile::GetPlatformPhysical().GetName()));
	EXPECT_TRUE(StandIn::Journal().empty());
}

TEST_F(FModuleShellTest, AtTheEditorsStartItStartsBeforeThePluginBrowserAndLoadsTheLevelEditorThenTheAssetRegistry)
{
	WriteFile("C:/Work/Moravane/Moravane.uproject", "{\"FileVersion\": 3, \"Modules\": [{\"Name\": \"UGCEditor\", \"Type\": \"Editor\", \"LoadingPhase\": \"Default\"}]}");

	StandIn::LoadStartupModules();

	EXPECT_TRUE(FUGCEditorCommands::IsRegistered());
	EXPECT_EQ(StandIn::LoadedModules(), (std::vector<FString>{TEXT("UGCEditor"), TEXT("LevelEditor"), TEXT("AssetRegistry"), TEXT("PluginBrowser")}));
}

TEST_F(FModuleShellTest, StartUpReloadsTexturesThenWarnsTwiceAndLeavesStyleCommandsAndItsLayerInPlace)
{
	const size_t Mark = JournalMark();
	LoadUGCEditor();

	EXPECT_EQ(StandIn::JournalLines(Mark), (std::vector<std::string>{
											   "Renderer: ReloadTextureResources",
											   "LogTemp: Warning: Unofficial Editor Extensions: Scanning Assets",
											   "LogTemp: Warning: Unofficial Editor Extensions: Finished Scanning Assets",
										   }));
	EXPECT_NE(FSlateStyleRegistry::FindSlateStyle(TEXT("UGCEditorStyle")), nullptr);
	EXPECT_TRUE(FUGCEditorCommands::IsRegistered());
	EXPECT_EQ(TopLayerName(), "SuperPlatform");
	EXPECT_EQ(StandIn::ToUtf8(FPlatformFileManager::Get().GetPlatformFile().GetLowerLevel()->GetName()), StandIn::ToUtf8(IPlatformFile::GetPlatformPhysical().GetName()));
}

TEST_F(FModuleShellTest, BothWarningsShowWhenLogTempIsAtWarning)
{
	const FLogScopedVerbosityOverride Quieter(&LogTemp, ELogVerbosity::Warning);

	LoadUGCEditor();

	EXPECT_EQ(LogTempLines(), (std::vector<std::string>{
								  "LogTemp: Warning: Unofficial Editor Extensions: Scanning Assets",
								  "LogTemp: Warning: Unofficial Editor Extensions: Finished Scanning Assets",
							  }));
}

TEST_F(FModuleShellTest, NeitherWarningShowsWhenLogTempIsQuieterThanWarningAndTheModuleStartsAllTheSame)
{
	const FLogScopedVerbosityOverride Quieter(&LogTemp, ELogVerbosity::Error);

	LoadUGCEditor();

	EXPECT_TRUE(StandIn::JournalRecords<StandIn::FLogRecord>().empty());
	EXPECT_EQ(TopLayerName(), "SuperPlatform");
}

TEST_F(FModuleShellTest, ShutDownRemovesStyleAndCommandsAndLeavesThePhysicalLayerOnTopNotTheOneBefore)
{
	FLowerLayerDouble Previous;
	FPlatformFileManager::Get().SetPlatformFile(Previous);
	const std::unique_ptr<IModuleInterface> Module(InitializeModule());
	Module->StartupModule();
	ASSERT_EQ(TopLayerName(), "SuperPlatform");

	Module->ShutdownModule();

	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("UGCEditorStyle")), nullptr);
	EXPECT_FALSE(FUGCEditorCommands::IsRegistered());
	EXPECT_EQ(TopLayerName(), StandIn::ToUtf8(IPlatformFile::GetPlatformPhysical().GetName()));
}

TEST_F(FModuleShellTest, ShutDownLeavesTheSixExtensionsWithTheLevelEditor)
{
	const std::unique_ptr<IModuleInterface> Module(InitializeModule());
	Module->StartupModule();

	Module->ShutdownModule();

	EXPECT_EQ(LevelEditor().GetMenuExtensibilityManager()->GetAllExtenders()->NumExtensions(), 3);
	EXPECT_EQ(LevelEditor().GetToolBarExtensibilityManager()->GetAllExtenders()->NumExtensions(), 3);
}

TEST_F(FModuleShellTest, FeatureObjectsOutliveShutDownAndGoWithTheModuleObject)
{
	std::unique_ptr<IModuleInterface> Module(InitializeModule());
	Module->StartupModule();

	Module->ShutdownModule();
	// The creator's tab spawner is registered for as long as the creator lives.
	EXPECT_TRUE(FGlobalTabmanager::Get()->HasTabSpawner(TEXT("UGCPluginCreator")));

	Module.reset();
	EXPECT_FALSE(FGlobalTabmanager::Get()->HasTabSpawner(TEXT("UGCPluginCreator")));
}
