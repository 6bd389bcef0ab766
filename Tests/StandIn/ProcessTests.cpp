#include "CoreMinimal.h"
#include "HAL/PlatformProcess.h"
#include "SandboxTest.h"
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

using FStandInProcessTest = FSandboxTest;

namespace
{
	const char* const EchoScript = "#!/bin/sh\n"
								   "for Argument in \"$@\"; do echo \"[$Argument]\"; done\n"
								   "echo \"drive root $UGC_DRIVE_ROOT\" >&2\n"
								   "exit 7\n";

	std::vector<std::string> ProcessCommandLines()
	{
		std::vector<std::string> Lines;
		for (const StandIn::FChildProcessRecord* Record : StandIn::JournalRecords<StandIn::FChildProcessRecord>())
		{
			Lines.push_back(StandIn::ToUtf8(Record->CommandLine));
		}
		return Lines;
	}

	// system() hands the interpreter this process's own standard handles, as the Windows runtime does; a test
	// answers a prompt by giving the process a standard input of its own for the call.
	struct FSystemRun
	{
		int Result;
		std::string Out;
	};

	FSystemRun RunSystemWithInput(const char* Command, const std::string& Input, const std::filesystem::path& Scratch)
	{
		const std::string InPath = (Scratch / "stdin.txt").string();
		const std::string OutPath = (Scratch / "stdout.txt").string();
		std::ofstream(InPath, std::ios::binary) << Input;
		std::fflush(stdout);
		const int SavedIn = dup(STDIN_FILENO);
		const int SavedOut = dup(STDOUT_FILENO);
		const int In = open(InPath.c_str(), O_RDONLY);
		const int Out = open(OutPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
		dup2(In, STDIN_FILENO);
		dup2(Out, STDOUT_FILENO);
		close(In);
		close(Out);
		const int Result = system(Command);
		dup2(SavedIn, STDIN_FILENO);
		dup2(SavedOut, STDOUT_FILENO);
		close(SavedIn);
		close(SavedOut);
		return FSystemRun{Result, ReadAll(OutPath)};
	}
}

TEST_F(FStandInProcessTest, ARealProgramAtAWindowsPathGetsItsArgumentsByWindowsRulesAndItsOutputIsCaptured)
{
	WriteFile("C:/Tools/echo.exe", EchoScript);
	std::filesystem::permissions(Host("C:/Tools/echo.exe"), std::filesystem::perms::owner_all);

	int32 ReturnCode = -1;
	FString StdOut, StdErr;
	EXPECT_TRUE(FPlatformProcess::ExecProcess(TEXT("C:/Tools/echo.exe"), TEXT("\"a b\" c\\d \"e\\\"f\" -x=C:/y \"\""), &ReturnCode, &StdOut, &StdErr));
	EXPECT_EQ(ReturnCode, 7);
	EXPECT_EQ(StandIn::ToUtf8(StdOut), "[a b]\n[c\\d]\n[e\"f]\n[-x=C:/y]\n[]\n");
	EXPECT_EQ(StandIn::ToUtf8(StdErr), "drive root " + Root.string() + "\n");
}

TEST_F(FStandInProcessTest, TheJournalHoldsTheUrlInQuotesABlankAndTheParametersAsGiven)
{
	InstallRecordingTool("C:/Tools/Recorder.exe");

	EXPECT_TRUE(FPlatformProcess::ExecProcess(TEXT("C:/Tools/Recorder.exe"), TEXT("a  \"b c\"\t-d "), nullptr, nullptr, nullptr));
	EXPECT_TRUE(FPlatformProcess::ExecProcess(TEXT("C:/Tools/Recorder.exe"), TEXT(""), nullptr, nullptr, nullptr));

	EXPECT_EQ(StandIn::JournalLines(), (std::vector<std::string>{
										   "Process: \"C:/Tools/Recorder.exe\" a  \"b c\"\t-d ",
										   "Process: \"C:/Tools/Recorder.exe\" ",
									   }));
}

TEST_F(FStandInProcessTest, AUrlWithABlankInItsPathIsQuotedWholeOnceAndItsChildGetsThatPathAsArgv0)
{
	InstallRecordingTool("C:/Program Files/Tools/Recorder.exe");

	EXPECT_TRUE(FPlatformProcess::ExecProcess(TEXT("C:/Program Files/Tools/Recorder.exe"), TEXT("C:/a\\\\\"b c\" d\"\"e"), nullptr, nullptr, nullptr));
	EXPECT_TRUE(FPlatformProcess::ExecProcess(TEXT("\"C:/Program Files/Tools/Recorder.exe\""), TEXT("-x"), nullptr, nullptr, nullptr));

	EXPECT_EQ(ProcessCommandLines(), (std::vector<std::string>{"\"C:/Program Files/Tools/Recorder.exe\" C:/a\\\\\"b c\" d\"\"e", "\"C:/Program Files/Tools/Recorder.exe\" -x"}));
	EXPECT_EQ(ReadFile("C:/Program Files/Tools/Recorder.exe.call1.argv0"), "C:/Program Files/Tools/Recorder.exe");
	EXPECT_EQ(ToolCallArguments("C:/Program Files/Tools/Recorder.exe", 1), (std::vector<std::string>{"C:/a\\b c", "de"}));
	EXPECT_EQ(ReadFile("C:/Program Files/Tools/Recorder.exe.call2.argv0"), "C:/Program Files/Tools/Recorder.exe");
	EXPECT_EQ(ToolCallArguments("C:/Program Files/Tools/Recorder.exe", 2), (std::vector<std::string>{"-x"}));
}

TEST_F(FStandInProcessTest, AProgramThatCannotStartGivesWindowsErrorAndIsJournaledBeforeTheWarningsThatSayWhy)
{
	int32 InMissingFolder = 0;
	FString StdOut = TEXT("untouched");
	EXPECT_FALSE(FPlatformProcess::ExecProcess(TEXT("C:/Work/Engine/Binaries/Win64/UnrealPak.exe"), TEXT("-create=x"), &InMissingFolder, &StdOut, nullptr));
	std::filesystem::create_directories(Host("C:/Work/Engine/Binaries/Win64"));
	int32 InFolder = 0;
	int32 OnPath = 0;
	EXPECT_FALSE(FPlatformProcess::ExecProcess(TEXT("C:/Work/Engine/Binaries/Win64/UnrealPak.exe"), TEXT(""), &InFolder, nullptr, nullptr));
	EXPECT_FALSE(FPlatformProcess::ExecProcess(TEXT("no-such-program.exe"), TEXT(""), &OnPath, nullptr, nullptr));

	EXPECT_EQ(InMissingFolder, 3);
	EXPECT_EQ(StandIn::ToUtf8(StdOut), "untouched");
	EXPECT_EQ(InFolder, 2);
	EXPECT_EQ(OnPath, 2);
	const std::vector<std::string> Lines = StandIn::JournalLines();
	ASSERT_GE(Lines.size(), 3u);
	EXPECT_EQ(std::vector<std::string>(Lines.begin(), Lines.begin() + 3), (std::vector<std::string>{
																			  "Process: \"C:/Work/Engine/Binaries/Win64/UnrealPak.exe\" -create=x",
																			  "LogWindows: Warning: CreateProc failed: The system cannot find the path specified. (0x00000003)",
																			  "LogWindows: Warning: URL: C:/Work/Engine/Binaries/Win64/UnrealPak.exe -create=x",
																		  }));
}

TEST_F(FStandInProcessTest, ExecProcessReturnsWhenTheChildEndsThoughAGrandchildKeepsItsOutputOpen)
{
	// The grandchild inherits both output pipes and outlives the child by half a minute.
	WriteFile("C:/Tools/spawner.exe", "#!/bin/sh\n"
									  "sleep 30 &\n"
									  "echo $! > \"$UGC_DRIVE_ROOT/C/Tools/grandchild.pid\"\n"
									  "echo started\n"
									  "exit 3\n");
	std::filesystem::permissions(Host("C:/Tools/spawner.exe"), std::filesystem::perms::owner_all);

	int32 ReturnCode = -1;
	FString StdOut, StdErr;
	const auto Start = std::chrono::steady_clock::now();
	EXPECT_TRUE(FPlatformProcess::ExecProcess(TEXT("C:/Tools/spawner.exe"), TEXT(""), &ReturnCode, &StdOut, &StdErr));
	const auto Elapsed = std::chrono::steady_clock::now() - Start;
	kill((pid_t)std::stoi(ReadFile("C:/Tools/grandchild.pid")), SIGTERM);

	EXPECT_LT(Elapsed, std::chrono::seconds(2));
	EXPECT_EQ(ReturnCode, 3);
	EXPECT_EQ(StandIn::ToUtf8(StdOut), "started\n");
}

TEST_F(FStandInProcessTest, SystemIsJournaledByteForByteAndItsCommandRunsThroughCmdExe)
{
	// "rmdir /s" means nothing to a POSIX shell; only cmd.exe removes this tree.
	WriteFile("C:/pellow/Gr\xc3\xbc\xc3\x9f"
			  "e/cooking.txt",
			  "x");
	const char* const Command = "rmdir /s /q \"C:/pellow/Gr\xc3\xbc\xc3\x9f"
								"e/\"";

	EXPECT_EQ(system(Command), 0);

	EXPECT_EQ(StandIn::JournalLines(), (std::vector<std::string>{std::string("system: ") + Command}));
	EXPECT_FALSE(Exists("C:/pellow/Gr\xc3\xbc\xc3\x9f"
						"e"));
}

TEST_F(FStandInProcessTest, SystemReturnsTheInterpretersExitCodeRatherThanAWaitStatus)
{
	EXPECT_EQ(system("rmdir /s /q \"C:/no-such-folder\""), 2);
}

TEST_F(FStandInProcessTest, TheModulesRemoveCommandGoesThroughASecondCmdExeAndLeavesLinkTargets)
{
	WriteFile("C:/Cooked/Content/a.uasset", "kept");
	WriteFile("C:/pellow/cooking.txt", "x");
	std::filesystem::create_directories(Host("C:/pellow/Moravane/Plugins/DLC"));
	std::filesystem::create_directory_symlink(Host("C:/Cooked"), Host("C:/pellow/Moravane/Plugins/DLC/Link"));

	EXPECT_EQ(system("cmd.exe /c rmdir /s /q \"C:/pellow/\""), 0);

	EXPECT_FALSE(Exists("C:/pellow"));
	EXPECT_EQ(ReadFile("C:/Cooked/Content/a.uasset"), "kept");
}

TEST_F(FStandInProcessTest, CmdExeMakesADirectoryLinkWhenItsOwnNameIsRepeatedBeforeTheSwitch)
{
	WriteFile("C:/Cooked/Content/a.uasset", "kept");
	std::filesystem::create_directories(Host("C:/pellow/DLC"));

	int32 ReturnCode = -1;
	FString StdOut, StdErr;
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("cmd.exe /C mklink /d \"C:/pellow/DLC/Link\" \"C:/Cooked\""), &ReturnCode, &StdOut, &StdErr));

	EXPECT_EQ(ReturnCode, 0);
	EXPECT_EQ(StandIn::ToUtf8(StdOut), "symbolic link created for C:/pellow/DLC/Link <<===>> C:/Cooked\n");
	EXPECT_TRUE(IsLink("C:/pellow/DLC/Link"));
	EXPECT_EQ(ReadFile("C:/pellow/DLC/Link/Content/a.uasset"), "kept");
}

TEST_F(FStandInProcessTest, CmdExeDoesNotMakeALinkWhereOneExists)
{
	std::filesystem::create_directories(Host("C:/Cooked"));
	std::filesystem::create_directories(Host("C:/pellow/DLC/Link"));

	int32 ReturnCode = -1;
	FString StdOut, StdErr;
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("cmd.exe /C mklink /d \"C:/pellow/DLC/Link\" \"C:/Cooked\""), &ReturnCode, &StdOut, &StdErr));

	EXPECT_EQ(ReturnCode, 1);
	EXPECT_EQ(StandIn::ToUtf8(StdErr), "Cannot create a file when that file already exists.\n");
	EXPECT_FALSE(IsLink("C:/pellow/DLC/Link"));
}

TEST_F(FStandInProcessTest, AnotherWordBeforeTheSwitchMakesCmdExeFailWithoutRunningTheCommand)
{
	std::filesystem::create_directories(Host("C:/Cooked"));
	std::filesystem::create_directories(Host("C:/pellow/DLC"));

	int32 ReturnCode = -1;
	FString StdOut, StdErr;
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("powershell.exe /C mklink /d \"C:/pellow/DLC/Link\" \"C:/Cooked\""), &ReturnCode, &StdOut, &StdErr));

	EXPECT_EQ(ReturnCode, 1);
	EXPECT_EQ(StandIn::ToUtf8(StdErr), "cmd.exe (stand-in): unexpected text before the command: powershell.exe\n");
	EXPECT_FALSE(Exists("C:/pellow/DLC/Link"));
}

TEST_F(FStandInProcessTest, CmdExeTakesItsSwitchesInEitherCase)
{
	std::filesystem::create_directories(Host("C:/pellow/A"));
	std::filesystem::create_directories(Host("C:/pellow/B"));

	int32 ReturnCode = -1;
	FString StdErr;
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("/q /c rd /S /Q C:/pellow/A"), &ReturnCode, nullptr, &StdErr));
	EXPECT_EQ(ReturnCode, 0);
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("/D /C RMDIR /s /q C:/pellow/B"), &ReturnCode, nullptr, &StdErr));
	EXPECT_EQ(ReturnCode, 0);

	EXPECT_FALSE(Exists("C:/pellow/A"));
	EXPECT_FALSE(Exists("C:/pellow/B"));
}

TEST_F(FStandInProcessTest, RmdirWithoutQuietAsksAndRemovesTheTreeOnlyWhenTheAnswerIsY)
{
	WriteFile("C:/pellow/cooking.txt", "x");

	const FSystemRun No = RunSystemWithInput("cmd.exe /c rmdir /s \"C:/pellow/\"", "N\r\n", Root);
	EXPECT_EQ(ReadFile("C:/pellow/cooking.txt"), "x");
	const FSystemRun Yes = RunSystemWithInput("cmd.exe /c rmdir /s \"C:/pellow/\"", "y\n", Root);

	EXPECT_EQ(No.Out, "C:/pellow/, Are you sure (Y/N)? ");
	EXPECT_EQ(No.Result, 0);
	EXPECT_EQ(Yes.Out, "C:/pellow/, Are you sure (Y/N)? ");
	EXPECT_EQ(Yes.Result, 0);
	EXPECT_FALSE(Exists("C:/pellow"));
}

TEST_F(FStandInProcessTest, RmdirQuietRemovesALinkItselfAndNotWhatItPointsTo)
{
	WriteFile("C:/Cooked/Content/a.uasset", "kept");
	std::filesystem::create_directories(Host("C:/pellow/DLC"));
	std::filesystem::create_directory_symlink(Host("C:/Cooked"), Host("C:/pellow/DLC/Link"));

	int32 ReturnCode = -1;
	FString StdErr;
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("/c rmdir /s /q \"C:/pellow/DLC/Link\""), &ReturnCode, nullptr, &StdErr));

	EXPECT_EQ(ReturnCode, 0);
	EXPECT_FALSE(Exists("C:/pellow/DLC/Link"));
	EXPECT_EQ(ReadFile("C:/Cooked/Content/a.uasset"), "kept");
}

TEST_F(FStandInProcessTest, RmdirOfAMissingFolderSaysSoWithWindowsExitCode)
{
	int32 ReturnCode = -1;
	FString StdErr;
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("/c rmdir /s /q \"C:/pellow/\""), &ReturnCode, nullptr, &StdErr));

	EXPECT_EQ(ReturnCode, 2);
	EXPECT_EQ(StandIn::ToUtf8(StdErr), "The system cannot find the file specified.\n");
}

TEST_F(FStandInProcessTest, CmdExeRunsAProgramThatIsNotABuiltInWithTheRestOfTheLineAsItsCommandLine)
{
	InstallRecordingTool("C:/Tools/Recorder.exe", 4);

	int32 ReturnCode = -1;
	FString StdOut, StdErr;
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("/C C:/Tools/Recorder.exe \"a b\" c\\\"d"), &ReturnCode, &StdOut, &StdErr));

	EXPECT_EQ(ReturnCode, 4);
	EXPECT_EQ(ReadFile("C:/Tools/Recorder.exe.call1.argv0"), "C:/Tools/Recorder.exe");
	EXPECT_EQ(ToolCallArguments("C:/Tools/Recorder.exe", 1), (std::vector<std::string>{"a b", "c\"d"}));
}

TEST_F(FStandInProcessTest, CmdExeRunsABatchFileWhoseWholeCommandIsQuotedAgainAfterSlashC)
{
	InstallRecordingTool("C:/Engine Files/RunUAT.bat", 3);

	int32 ReturnCode = -1;
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("/c \"\"C:/Engine Files/RunUAT.bat\" BuildDLC -Project=\"C:/A B/P.uproject\" -ue4exe=\"C:/W/\"M/x.exe -dlcName=\"N\",\"N\" \""), &ReturnCode, nullptr, nullptr));

	EXPECT_EQ(ReturnCode, 3);
	EXPECT_EQ(ReadFile("C:/Engine Files/RunUAT.bat.call1.argv0"), "C:/Engine Files/RunUAT.bat");
	EXPECT_EQ(ToolCallArguments("C:/Engine Files/RunUAT.bat", 1), (std::vector<std::string>{"BuildDLC", "-Project=C:/A B/P.uproject", "-ue4exe=C:/W/M/x.exe", "-dlcName=N,N"}));
}

TEST_F(FStandInProcessTest, CmdExeStartedWithoutAWindowsCommandLineRefusesToGuessOne)
{
	std::filesystem::create_directories(Host("C:/pellow"));

	const int Status = HostShell("cmd.exe /c rmdir /s /q C:/pellow 2> \"" + Host("C:/err.txt").string() + "\"");

	EXPECT_EQ(WEXITSTATUS(Status), 1);
	EXPECT_EQ(ReadFile("C:/err.txt"), "cmd.exe (stand-in): started without a Windows command line\n");
	EXPECT_TRUE(Exists("C:/pellow"));
}
