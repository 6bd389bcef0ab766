#include "DistributionTestSupport.h"
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iconv.h>

namespace
{
	const std::string Password = "-password=n8nOz27vGPuKaGmSaWHGOKxG8pKHBJwJq13TcoKBzDPhYD5nlo";

	std::vector<std::string> Lines(std::initializer_list<std::vector<std::string>> Groups)
	{
		std::vector<std::string> All;
		for (const std::vector<std::string>& Group : Groups)
		{
			All.insert(All.end(), Group.begin(), Group.end());
		}
		return All;
	}

	std::vector<std::string> StagedFilesOf(const std::string& Plugin, const std::vector<std::string>& Files)
	{
		std::vector<std::string> Staged;
		for (const std::string& File : Files)
		{
			Staged.push_back(ResponseLine("Moravane/Plugins/DLC/" + Plugin + "/" + File));
		}
		return Staged;
	}

	bool IsSingleByteText(const std::string& Bytes)
	{
		return !Bytes.empty() && Bytes.front() == '{' && Bytes.back() == '}' && Bytes.find('\r') == std::string::npos && (unsigned char)Bytes[0] != 0xFF;
	}

	// Decoded by the C library's converter, not by anything of ours.
	std::string Utf16LittleEndianToUtf8(std::string Bytes)
	{
		iconv_t Converter = iconv_open("UTF-8", "UTF-16LE");
		std::string Text(Bytes.size() * 2, '\0');
		char* In = &Bytes[0];
		size_t InLeft = Bytes.size();
		char* Out = &Text[0];
		size_t OutLeft = Text.size();
		const size_t Result = iconv(Converter, &In, &InLeft, &Out, &OutLeft);
		iconv_close(Converter);
		EXPECT_NE(Result, (size_t)-1) << "not UTF-16LE";
		Text.resize(Text.size() - OutLeft);
		return Text;
	}

	bool ParsesAsJson(const std::string& Bytes)
	{
		const std::string Path = testing::TempDir() + "/ugc-descriptor.json";
		std::ofstream(Path, std::ios::binary) << Bytes;
		return HostShell(("jq -e . '" + Path + "' > /dev/null").c_str()) == 0;
	}
}

TEST_F(FDistributionTest, OriginalAndOtherPluginsMakeOnePakWithDescriptorsAndMergedRegistry)
{
	Cook("Alpha");
	Cook("Beta");
	Cook("Gamma");

	Distribute({Entry("Alpha", true), Entry("Beta", false), Entry("Gamma", true)}, false);

	const std::string PakPath = "C:/Work/Moravane-WindowsNoEditor-Alpha.pak";
	const std::vector<std::string> ExpectedResponse = Lines({
		{ResponseLine("Moravane/Plugins/Alpha.upluginmanifest"), ResponseLine("Moravane/Plugins/Gamma.upluginmanifest")},
		StagedFilesOf("Alpha", {"Alpha.uplugin", "Content/Alpha.dlc", "Content/AssetRegistry.bin", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
		StagedFilesOf("Beta", {"AssetRegistry.bin", "Content/AssetRegistry.bin", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
		StagedFilesOf("Gamma", {"Gamma.uplugin", "Content/Gamma.dlc", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
		// The links are reached a second time from the DLC folder.
		StagedFilesOf("Alpha", {"Alpha.uplugin", "Content/Alpha.dlc", "Content/AssetRegistry.bin", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
		StagedFilesOf("Beta", {"AssetRegistry.bin", "Content/AssetRegistry.bin", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
		StagedFilesOf("Gamma", {"Gamma.uplugin", "Content/Gamma.dlc", "Content/Maps/Route.uexp", "Content/Maps/Route.umap"}),
	});
	ASSERT_EQ(ToolCallCount(PakTool), 1);
	EXPECT_EQ(SplitLines(ToolCallResponseFile(PakTool, 1)), ExpectedResponse);
	EXPECT_EQ(ToolCallArguments(PakTool, 1), (std::vector<std::string>{PakPath, "-create=C:/pellow/cooking.txt", "-compress"}));

	ASSERT_EQ(ToolCallCount(Merger), 1);
	const std::string AlphaRegistry = "C:/pellow/Moravane/Plugins/DLC/Alpha/Content/AssetRegistry.bin";
	const std::string GammaRegistry = "C:/pellow/Moravane/Plugins/DLC/Gamma/Content/AssetRegistry.bin";
	EXPECT_EQ(ToolCallArguments(Merger, 1), (std::vector<std::string>{AlphaRegistry, GammaRegistry, AlphaRegistry, Password}));

	std::vector<std::string> ExpectedLog = {
		"LogTemp: DLC file Alpha.dlc is generated",
		"LogTemp: File Alpha.uplugin is generated",
		"LogTemp: File Alpha.upluginmanifest is generated",
		"LogTemp: File AssetRegistry for not your original plugin is generated",
		"LogTemp: DLC file Gamma.dlc is generated",
		"LogTemp: File Gamma.uplugin is generated",
		"LogTemp: File Gamma.upluginmanifest is generated",
	};
	for (const std::string& Line : ExpectedResponse)
	{
		ExpectedLog.push_back("LogTemp: Adding file for paking: " + Line.substr(1, Line.find('"', 1) - 1));
	}
	ExpectedLog.push_back("LogTemp: Your pak is saved here: " + PakPath);
	ExpectedLog.push_back("LogTemp: Pak file created successfully: " + PakPath);
	EXPECT_EQ(LogTempLines(), ExpectedLog);
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: " + PakPath}));

	// What the pak tool was handed, byte for byte.
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/Alpha.upluginmanifest"), Fill(ManifestTemplate, "Alpha"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/Gamma.upluginmanifest"), Fill(ManifestTemplate, "Gamma"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Gamma/Content/Gamma.dlc"), Fill(DlcTemplate, "Gamma", "Alpha"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Gamma/Gamma.uplugin"), Fill(UPluginTemplate, "Gamma"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Beta/AssetRegistry.bin"), ".");

	// Only the last writer of each kind is cleaned up; the first original keeps its descriptors.
	EXPECT_EQ(ReadFile(CookedFolder("Alpha") + "/Content/Alpha.dlc"), Fill(DlcTemplate, "Alpha", "Alpha"));
	EXPECT_EQ(ReadFile(CookedFolder("Alpha") + "/Alpha.uplugin"), Fill(UPluginTemplate, "Alpha"));
	const std::vector<std::string> CookedFiles = {"Content/AssetRegistry.bin", "Content/Maps/Route.uexp", "Content/Maps/Route.umap", "Content/Metadata/DevelopmentAssetRegistry.bin"};
	EXPECT_EQ(FilesBelow(CookedFolder("Alpha")), Lines({{"Alpha.uplugin", "Content/Alpha.dlc"}, CookedFiles}));
	EXPECT_EQ(FilesBelow(CookedFolder("Beta")), CookedFiles);
	EXPECT_EQ(FilesBelow(CookedFolder("Gamma")), CookedFiles);
	EXPECT_EQ(ReadFile(CookedFolder("Gamma") + "/Content/Maps/Route.umap"), "map of Gamma");

	EXPECT_FALSE(Exists("C:/pellow")) << "the staging tree is removed";
	ASSERT_FALSE(StandIn::JournalRecords<StandIn::FFileAttributesRecord>().empty());
	for (const StandIn::FFileAttributesRecord* CallRecord : StandIn::JournalRecords<StandIn::FFileAttributesRecord>())
	{
		const StandIn::FFileAttributesRecord& Call = *CallRecord;
		EXPECT_EQ(StandIn::ToUtf8(Call.Path), "C:/pellow/");
		EXPECT_EQ(Call.Attributes, 0x2u);
	}
	EXPECT_EQ(StandIn::JournalRecords<StandIn::FFileAttributesRecord>().size(), 3u) << "hidden once per staged plugin";
}

TEST_F(FDistributionTest, EditionFlagWritesUgcDescriptorsNamedAfterTheFirstPlugin)
{
	Cook("First");
	Cook("Second");
	Cook("Third");

	Distribute({Entry("First", false), Entry("Second", true, {"DLC_A", "DLC_B"}), Entry("Third", true, {R"(Quo"te)", R"(Back\slash)"})}, true);

	EXPECT_EQ(ReadFile(CookedFolder("Second") + "/Content/Second.ugc"), FillUgc("Second", "First", R"("DLC_A", "DLC_B")"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/Third/Content/Third.ugc"), FillUgc("Third", "First", R"("Quo"te", "Back\slash")"));
	EXPECT_EQ(ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/DLC/First/AssetRegistry.bin"), ".");
	EXPECT_FALSE(Exists(CookedFolder("Third") + "/Content/Third.ugc"));
	EXPECT_FALSE(Exists(CookedFolder("First") + "/AssetRegistry.bin"));
	EXPECT_FALSE(Exists(CookedFolder("Second") + "/Content/Second.dlc"));

	EXPECT_EQ(ToolCallArguments(PakTool, 1).front(), "C:/Work/Moravane-WindowsNoEditor-First.pak");
	const std::vector<std::string> Log = LogTempLines();
	EXPECT_EQ(std::vector<std::string>(Log.begin(), Log.begin() + 7), (std::vector<std::string>{
																		  "LogTemp: File AssetRegistry for not your original plugin is generated",
																		  "LogTemp: UGC file Second.ugc is generated",
																		  "LogTemp: File Second.uplugin is generated",
																		  "LogTemp: File Second.upluginmanifest is generated",
																		  "LogTemp: UGC file Third.ugc is generated",
																		  "LogTemp: File Third.uplugin is generated",
																		  "LogTemp: File Third.upluginmanifest is generated",
																	  }));
}

TEST_F(FDistributionTest, DescriptorsAreSingleByteJsonForPlainNamesAndUtf16ForOthers)
{
	Cook("Plain");
	Cook("Dvořák");
	Cook("Last");

	Distribute({Entry("Plain", true), Entry("Dvořák", true, {"DLC_A"}), Entry("Last", true)}, true);

	const std::vector<std::string> PlainFiles = {
		ReadFile(CookedFolder("Plain") + "/Content/Plain.ugc"),
		ReadFile(CookedFolder("Plain") + "/Plain.uplugin"),
		ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/Plain.upluginmanifest"),
	};
	for (const std::string& Bytes : PlainFiles)
	{
		EXPECT_TRUE(IsSingleByteText(Bytes)) << Bytes;
		EXPECT_TRUE(ParsesAsJson(Bytes)) << Bytes;
	}

	const std::string Bom = "\xFF\xFE";
	const std::string Ugc = ReadFile(CookedFolder("Dvořák") + "/Content/Dvořák.ugc");
	const std::string UPlugin = ReadFile(CookedFolder("Dvořák") + "/Dvořák.uplugin");
	const std::string Manifest = ToolCallPackedFile(PakTool, 1, "Moravane/Plugins/Dvořák.upluginmanifest");
	for (const std::string& Bytes : {Ugc, UPlugin, Manifest})
	{
		ASSERT_EQ(Bytes.substr(0, 2), Bom);
	}
	EXPECT_EQ(Utf16LittleEndianToUtf8(Ugc.substr(2)), FillUgc("Dvořák", "Plain", R"("DLC_A")"));
	EXPECT_EQ(Utf16LittleEndianToUtf8(UPlugin.substr(2)), Fill(UPluginTemplate, "Dvořák"));
	EXPECT_EQ(Utf16LittleEndianToUtf8(Manifest.substr(2)), Fill(ManifestTemplate, "Dvořák"));
	EXPECT_TRUE(ParsesAsJson(Utf16LittleEndianToUtf8(Ugc.substr(2))));
	EXPECT_EQ(ToolCallResponseFile(PakTool, 1).substr(0, 2), Bom) << "a response file naming such a plugin is UTF-16 too";

	Distribute({Entry("Plain", true), Entry("Last", true)}, false);
	EXPECT_TRUE(ParsesAsJson(ReadFile(CookedFolder("Plain") + "/Content/Plain.dlc")));
}

TEST_F(FDistributionTest, MergesEveryFurtherOriginalIntoTheFirstAndPacksNoMetadata)
{
	Cook("A");
	Cook("B");
	Cook("C");
	WriteFile(CookedFolder("A") + "/Content/METADATA/Extra.bin", "x");
	WriteFile(CookedFolder("B") + "/Content/metadata/Other.bin", "x");
	WriteFile(CookedFolder("C") + "/Content/MetadataNotes.txt", "kept: not a metadata folder");

	Distribute({Entry("A", true), Entry("B", true), Entry("C", true)}, false);

	const auto RegistryOf = [](const std::string& Name) {
		return "C:/pellow/Moravane/Plugins/DLC/" + Name + "/Content/AssetRegistry.bin";
	};
	ASSERT_EQ(ToolCallCount(Merger), 2);
	EXPECT_EQ(ToolCallArguments(Merger, 1), (std::vector<std::string>{RegistryOf("A"), RegistryOf("B"), RegistryOf("A"), Password}));
	EXPECT_EQ(ToolCallArguments(Merger, 2), (std::vector<std::string>{RegistryOf("A"), RegistryOf("C"), RegistryOf("A"), Password}));

	const std::string Response = ToolCallResponseFile(PakTool, 1);
	const std::vector<std::string> ResponseLines = SplitLines(Response);
	EXPECT_EQ(std::count(ResponseLines.begin(), ResponseLines.end(), ResponseLine("Moravane/Plugins/DLC/A/Content/AssetRegistry.bin")), 2);
	EXPECT_EQ(std::count(ResponseLines.begin(), ResponseLines.end(), ResponseLine("Moravane/Plugins/DLC/C/Content/MetadataNotes.txt")), 2);
	EXPECT_EQ(Response.find("DLC/B/Content/AssetRegistry.bin"), std::string::npos);
	EXPECT_EQ(Response.find("DLC/C/Content/AssetRegistry.bin"), std::string::npos);
	EXPECT_EQ(Response.find("etadata/"), std::string::npos);
	EXPECT_EQ(Response.find("METADATA/"), std::string::npos);
	EXPECT_EQ(Response.back(), '\n');
}

TEST_F(FDistributionTest, AFailingOrMissingPakToolIsReportedAndTheRunStillEnds)
{
	Cook("Alpha");
	InstallRecordingTool(PakTool, 3);
	Distribute({Entry("Alpha", true)}, false);

	const std::string PakPath = "C:/Work/Moravane-WindowsNoEditor-Alpha.pak";
	std::vector<std::string> Log = LogTempLines();
	ASSERT_GE(Log.size(), 3u);
	EXPECT_EQ(std::vector<std::string>(Log.end() - 3, Log.end()), (std::vector<std::string>{
																	  "LogTemp: Error: Failed to create pak file: " + PakPath,
																	  "LogTemp: Error: UnrealPak StdOut: UnrealPak.exe stand-in: 3 arguments\n",
																	  "LogTemp: Error: UnrealPak StdErr: UnrealPak.exe stand-in: exit code 3\n",
																  }));
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: " + PakPath}));
	EXPECT_FALSE(Exists("C:/pellow"));
	EXPECT_FALSE(Exists(CookedFolder("Alpha") + "/Alpha.uplugin"));

	ResetWorld(DefaultWorld());
	std::filesystem::remove(Host(PakTool));
	Distribute({Entry("Alpha", true)}, false);

	Log = LogTempLines();
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

TEST_F(FDistributionTest, ASingleOriginalIsNotMergedAndALaunchFolderWithBackslashesIsMadeAbsolute)
{
	StandIn::FWorld World = DefaultWorld();
	World.LaunchDir = TEXT("C:\\Work/");
	ResetWorld(World);
	Cook("Solo");
	Cook("Other");

	Distribute({Entry("Other", false), Entry("Solo", true)}, false);

	EXPECT_EQ(ToolCallCount(Merger), 0);
	EXPECT_EQ(ToolCallArguments(PakTool, 1).front(), "C:/Work/Moravane-WindowsNoEditor-Other.pak");
	EXPECT_NE(ToolCallResponseFile(PakTool, 1).find(ResponseLine("Moravane/Plugins/DLC/Solo/Content/AssetRegistry.bin")), std::string::npos);

	// A second run finds everything as the first left it.
	Distribute({Entry("Other", false), Entry("Solo", true)}, false);
	EXPECT_EQ(ToolCallResponseFile(PakTool, 2), ToolCallResponseFile(PakTool, 1));
	const std::vector<std::string> CookedFiles = {"Content/AssetRegistry.bin", "Content/Maps/Route.uexp", "Content/Maps/Route.umap", "Content/Metadata/DevelopmentAssetRegistry.bin"};
	EXPECT_EQ(FilesBelow(CookedFolder("Solo")), CookedFiles);
	EXPECT_EQ(FilesBelow(CookedFolder("Other")), CookedFiles);
}
