#include "DistributionTestSupport.h"

// What a distribution run hands to other programs, read from the journal exactly as Windows would have
// received it, and where those runs stand among the run's log lines, message boxes and deletions.
namespace
{
	std::vector<std::string> ChildCommandLines()
	{
		std::vector<std::string> Lines;
		for (const StandIn::FChildProcessRecord* Record : StandIn::JournalRecords<StandIn::FChildProcessRecord>())
		{
			Lines.push_back(StandIn::ToUtf8(Record->CommandLine));
		}
		return Lines;
	}

	std::vector<std::string> SystemCommands()
	{
		std::vector<std::string> Commands;
		for (const StandIn::FSystemCallRecord* Record : StandIn::JournalRecords<StandIn::FSystemCallRecord>())
		{
			Commands.push_back(Record->Command);
		}
		return Commands;
	}

	// Position of the first journal line that starts with the prefix, or the journal's length.
	size_t JournalPosition(const std::string& Prefix)
	{
		const std::vector<std::string> Lines = StandIn::JournalLines();
		size_t Index = 0;
		while (Index < Lines.size() && Lines[Index].compare(0, Prefix.size(), Prefix) != 0)
		{
			++Index;
		}
		return Index;
	}

	std::string LinkCommandLine(const std::string& LaunchDir, const std::string& Plugin)
	{
		return "\"cmd.exe\" cmd.exe /C mklink /d \"C:/pellow/Moravane/Plugins/DLC/" + Plugin + "\" \"" + LaunchDir + "Moravane/Plugins/" + Plugin + "/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/" + Plugin + "\"";
	}

}

TEST_F(FDistributionTest, EveryChildGetsTheCommandLineTheModuleWrote)
{
	Cook("Alpha");
	Cook("Beta");
	Cook("Gamma");

	Distribute({Entry("Alpha", true), Entry("Beta", false), Entry("Gamma", true)}, false);

	EXPECT_EQ(ChildCommandLines(), (std::vector<std::string>{
									   LinkCommandLine("C:/Work/", "Alpha"),
									   LinkCommandLine("C:/Work/", "Beta"),
									   LinkCommandLine("C:/Work/", "Gamma"),
									   "\"C:/Work/PellowTools/AssetMerger.exe\" " + StagedRegistryOf("Alpha") + " " + StagedRegistryOf("Gamma") + " " + StagedRegistryOf("Alpha") + " " + MergerPassword,
									   "\"C:/Work/Engine/Binaries/Win64/UnrealPak.exe\" \"C:/Work/Moravane-WindowsNoEditor-Alpha.pak\" -create=C:/pellow/cooking.txt -compress",
								   }));
	EXPECT_EQ(SystemCommands(), (std::vector<std::string>{"cmd.exe /c rmdir /s /q \"C:/pellow/\""}));
}

TEST_F(FDistributionTest, ALaunchFolderWithABlankIsQuotedOnlyWhereTheModuleQuotesIt)
{
	StandIn::FWorld World = DefaultWorld();
	World.LaunchDir = TEXT("C:/Rail Works/");
	World.BaseDir = TEXT("C:/Rail Works/Engine/Binaries/Win64/");
	ResetWorld(World);
	InstallRecordingTool("C:/Rail Works/PellowTools/AssetMerger.exe");
	InstallRecordingTool("C:/Rail Works/Engine/Binaries/Win64/UnrealPak.exe");
	const std::string Cooked = "C:/Rail Works/Moravane/Plugins/Line/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/Line";
	WriteFile(Cooked + "/Content/Maps/Route.umap", "map of Line");

	Distribute({Entry("Line", true)}, false);

	EXPECT_EQ(ChildCommandLines(), (std::vector<std::string>{
									   LinkCommandLine("C:/Rail Works/", "Line"),
									   "\"C:/Rail Works/Engine/Binaries/Win64/UnrealPak.exe\" \"C:/Rail Works/Moravane-WindowsNoEditor-Line.pak\" -create=C:/pellow/cooking.txt -compress",
								   }));
	ASSERT_EQ(ToolCallCount("C:/Rail Works/Engine/Binaries/Win64/UnrealPak.exe"), 1);
	EXPECT_EQ(ToolCallArguments("C:/Rail Works/Engine/Binaries/Win64/UnrealPak.exe", 1), (std::vector<std::string>{"C:/Rail Works/Moravane-WindowsNoEditor-Line.pak", "-create=C:/pellow/cooking.txt", "-compress"}));
	EXPECT_EQ(ReadFile(Cooked + "/Content/Maps/Route.umap"), "map of Line") << "the link reached the cooked folder";
}

TEST_F(FDistributionTest, WhereThePakIsSavedIsLoggedBeforeThePakToolRuns)
{
	Cook("Alpha");

	Distribute({Entry("Alpha", true)}, false);

	const size_t Logged = JournalPosition("LogTemp: Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-Alpha.pak");
	const size_t PakToolRun = JournalPosition("Process: \"C:/Work/Engine/Binaries/Win64/UnrealPak.exe\"");
	ASSERT_LT(PakToolRun, StandIn::Journal().size());
	EXPECT_LT(Logged, PakToolRun);
	EXPECT_EQ(PakToolRun + 1, JournalPosition("LogTemp: Pak file created successfully: ")) << "the outcome follows the run";
}

TEST_F(FDistributionTest, TheFinalMessageComesAfterTheCleanUp)
{
	Cook("Alpha");
	Cook("Beta");

	Distribute({Entry("Alpha", true), Entry("Beta", true)}, false);

	const std::vector<std::string> Tail = StandIn::JournalLines(JournalPosition("LogTemp: Pak file created successfully: "));
	EXPECT_EQ(Tail, (std::vector<std::string>{
						"LogTemp: Pak file created successfully: C:/Work/Moravane-WindowsNoEditor-Alpha.pak",
						"system: cmd.exe /c rmdir /s /q \"C:/pellow/\"",
						"Message: Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-Alpha.pak",
					}));
	EXPECT_FALSE(Exists(CookedFolder("Beta") + "/Content/Beta.dlc")) << "deleted before the staging tree went";
	EXPECT_TRUE(Exists(CookedFolder("Alpha") + "/Content/Alpha.dlc"));
}
