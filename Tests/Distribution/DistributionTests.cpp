#include "DistributionTestSupport.h"

// A whole run as the modder sees it: what it logs and shows, what it leaves on disk and how it ends.
namespace
{
	const std::vector<std::string> CookedFiles = {"Content/AssetRegistry.bin", "Content/Maps/Route.uexp", "Content/Maps/Route.umap", "Content/Metadata/DevelopmentAssetRegistry.bin"};
}

TEST_F(FDistributionTest, EachEntryLogsItsGeneratedFilesThenEveryPackedFileThenThePak)
{
	Cook("Alpha");
	Cook("Beta");
	Cook("Gamma");

	Distribute({Entry("Alpha", true), Entry("Beta", false), Entry("Gamma", true)}, false);

	std::vector<std::string> ExpectedLog = {
		"LogTemp: DLC file Alpha.dlc is generated",
		"LogTemp: File Alpha.uplugin is generated",
		"LogTemp: File Alpha.upluginmanifest is generated",
		"LogTemp: File AssetRegistry for not your original plugin is generated",
		"LogTemp: DLC file Gamma.dlc is generated",
		"LogTemp: File Gamma.uplugin is generated",
		"LogTemp: File Gamma.upluginmanifest is generated",
	};
	for (const std::string& Line : SplitLines(ToolCallResponseFile(PakTool, 1)))
	{
		ExpectedLog.push_back("LogTemp: Adding file for paking: " + Line.substr(1, Line.find('"', 1) - 1));
	}
	ExpectedLog.push_back("LogTemp: Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-Alpha.pak");
	ExpectedLog.push_back("LogTemp: Pak file created successfully: C:/Work/Moravane-WindowsNoEditor-Alpha.pak");
	EXPECT_EQ(LogTempLines(), ExpectedLog);
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-Alpha.pak"}));
}

TEST_F(FDistributionTest, OnlyTheLastWriterOfEachKindIsCleanedUp)
{
	Cook("Alpha");
	Cook("Beta");
	Cook("Gamma");
	Cook("Delta");

	Distribute({Entry("Alpha", true), Entry("Beta", false), Entry("Gamma", true), Entry("Delta", false)}, false);

	EXPECT_EQ(FilesBelow(CookedFolder("Alpha")), Concatenated({{"Alpha.uplugin", "Content/Alpha.dlc"}, CookedFiles}));
	EXPECT_EQ(ReadFile(CookedFolder("Alpha") + "/Content/Alpha.dlc"), Fill(DlcTemplate, "Alpha", "Alpha"));
	EXPECT_EQ(ReadFile(CookedFolder("Alpha") + "/Alpha.uplugin"), Fill(UPluginTemplate, "Alpha"));
	EXPECT_EQ(FilesBelow(CookedFolder("Beta")), Concatenated({{"AssetRegistry.bin"}, CookedFiles}));
	EXPECT_EQ(ReadFile(CookedFolder("Beta") + "/AssetRegistry.bin"), ".");
	EXPECT_EQ(FilesBelow(CookedFolder("Gamma")), CookedFiles);
	EXPECT_EQ(FilesBelow(CookedFolder("Delta")), CookedFiles);
	EXPECT_EQ(ReadFile(CookedFolder("Gamma") + "/Content/Maps/Route.umap"), "map of Gamma") << "removing the links spares what they point to";
}

TEST_F(FDistributionTest, TheStagingRootIsMadeHiddenForEveryEntryAndRemovedAtTheEnd)
{
	Cook("Alpha");
	Cook("Beta");

	Distribute({Entry("Alpha", true), Entry("Beta", false)}, false);

	const std::vector<const StandIn::FFileAttributesRecord*> Calls = StandIn::JournalRecords<StandIn::FFileAttributesRecord>();
	ASSERT_EQ(Calls.size(), 2u);
	for (const StandIn::FFileAttributesRecord* Call : Calls)
	{
		EXPECT_EQ(StandIn::ToUtf8(Call->Path), "C:/pellow/");
		EXPECT_EQ(Call->Attributes, 0x2u) << "FILE_ATTRIBUTE_HIDDEN";
	}
	EXPECT_FALSE(Exists("C:/pellow"));
}

TEST_F(FDistributionTest, ARunLeavesThePipelineWithoutPlugins)
{
	Cook("Alpha");

	const TSharedRef<FUGCPaking> Paking = Distribute({Entry("Alpha", true)}, true);

	EXPECT_EQ(Paking->Plugins.Num(), 0);
	EXPECT_TRUE(Paking->bCalverly5Plugin) << "the edition flag is the dialog's to change";
}

TEST_F(FDistributionTest, TheFinalMessageIsLocalisedUnderItsOwnNamespaceAndKey)
{
	Translate("DialogNamespace", "DialogText", "Pak uložen zde: {0}");
	Cook("Alpha");

	Distribute({Entry("Alpha", true)}, false);

	const std::vector<const StandIn::FMessageBoxRecord*> Boxes = StandIn::JournalRecords<StandIn::FMessageBoxRecord>();
	ASSERT_EQ(Boxes.size(), 1u);
	EXPECT_EQ(Boxes[0]->Type, EAppMsgType::Ok);
	EXPECT_EQ(StandIn::ToUtf8(Boxes[0]->Message.ToString()), "Pak uložen zde: C:/Work/Moravane-WindowsNoEditor-Alpha.pak");
}

TEST_F(FDistributionTest, AFailingPakToolIsReportedWithItsOutputAndTheRunStillEnds)
{
	Cook("Alpha");
	InstallRecordingTool(PakTool, 3);

	Distribute({Entry("Alpha", true)}, false);

	const std::string PakPath = "C:/Work/Moravane-WindowsNoEditor-Alpha.pak";
	const std::vector<std::string> Log = LogTempLines();
	ASSERT_GE(Log.size(), 4u);
	EXPECT_EQ(std::vector<std::string>(Log.end() - 4, Log.end()), (std::vector<std::string>{
																	  "LogTemp: Your pak is saved here: " + PakPath,
																	  "LogTemp: Error: Failed to create pak file: " + PakPath,
																	  "LogTemp: Error: UnrealPak StdOut: UnrealPak.exe stand-in: 3 arguments\n",
																	  "LogTemp: Error: UnrealPak StdErr: UnrealPak.exe stand-in: exit code 3\n",
																  }));
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: " + PakPath}));
	EXPECT_FALSE(Exists("C:/pellow"));
	EXPECT_FALSE(Exists(CookedFolder("Alpha") + "/Alpha.uplugin"));
}

TEST_F(FDistributionTest, AMissingPakToolIsReportedWithEmptyOutput)
{
	Cook("Alpha");
	std::filesystem::remove(Host(PakTool));

	Distribute({Entry("Alpha", true)}, false);

	const std::string PakPath = "C:/Work/Moravane-WindowsNoEditor-Alpha.pak";
	const std::vector<std::string> Log = LogTempLines();
	ASSERT_GE(Log.size(), 3u);
	EXPECT_EQ(std::vector<std::string>(Log.end() - 3, Log.end()), (std::vector<std::string>{
																	  "LogTemp: Error: Failed to create pak file: " + PakPath,
																	  "LogTemp: Error: UnrealPak StdOut: ",
																	  "LogTemp: Error: UnrealPak StdErr: ",
																  }));
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: " + PakPath}));
	EXPECT_FALSE(Exists("C:/pellow"));
}

TEST_F(FDistributionTest, AnEmptyRunStillWritesAnEmptyResponseFileAndRunsThePakTool)
{
	Distribute({}, true);

	const std::string PakPath = "C:/Work/Moravane-WindowsNoEditor-.pak";
	ASSERT_EQ(ToolCallCount(PakTool), 1);
	EXPECT_EQ(ToolCallArguments(PakTool, 1), (std::vector<std::string>{PakPath, "-create=C:/pellow/cooking.txt", "-compress"}));
	EXPECT_EQ(ToolCallResponseFile(PakTool, 1), "");
	EXPECT_EQ(ToolCallCount(Merger), 0);
	EXPECT_TRUE(StandIn::JournalRecords<StandIn::FFileAttributesRecord>().empty());
	EXPECT_EQ(LogTempLines(), (std::vector<std::string>{"LogTemp: Your pak is saved here: " + PakPath, "LogTemp: Pak file created successfully: " + PakPath}));
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: " + PakPath}));
	EXPECT_FALSE(Exists("C:/pellow"));
}

TEST_F(FDistributionTest, ANotOriginalFirstPluginStillNamesThePak)
{
	Cook("Other");
	Cook("Solo");

	Distribute({Entry("Other", false), Entry("Solo", true)}, false);

	EXPECT_EQ(ToolCallArguments(PakTool, 1).front(), "C:/Work/Moravane-WindowsNoEditor-Other.pak");
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Solo/Content/Solo.dlc"), Fill(DlcTemplate, "Solo", "Other"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Other/AssetRegistry.bin"), ".");
}

TEST_F(FDistributionTest, ALaunchFolderGivenWithABackslashIsMadeAbsoluteWithSlashes)
{
	StandIn::FWorld World = DefaultWorld();
	World.LaunchDir = TEXT("C:\\Work/");
	ResetWorld(World);
	Cook("Solo");

	Distribute({Entry("Solo", true)}, false);

	EXPECT_EQ(ToolCallArguments(PakTool, 1).front(), "C:/Work/Moravane-WindowsNoEditor-Solo.pak");
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Solo/Content/Maps/Route.umap"), "map of Solo") << "the link reached the cooked folder";
}

TEST_F(FDistributionTest, ASecondRunFindsEverythingAsTheFirstLeftIt)
{
	Cook("Other");
	Cook("Solo");
	Distribute({Entry("Other", false), Entry("Solo", true)}, false);

	Distribute({Entry("Other", false), Entry("Solo", true)}, false);

	ASSERT_EQ(ToolCallCount(PakTool), 2);
	EXPECT_EQ(ToolCallResponseFile(PakTool, 2), ToolCallResponseFile(PakTool, 1));
	EXPECT_EQ(FilesBelow(CookedFolder("Solo")), CookedFiles);
	EXPECT_EQ(FilesBelow(CookedFolder("Other")), CookedFiles);
}
