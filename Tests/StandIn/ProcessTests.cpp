#include "CoreMinimal.h"
#include "HAL/PlatformProcess.h"
#include "SandboxTest.h"
#include <cstdlib>

using FStandInProcessTest = FSandboxTest;

namespace
{
	const char* const EchoScript = "#!/bin/sh\n"
								   "for Argument in \"$@\"; do echo \"[$Argument]\"; done\n"
								   "echo \"drive root $UGC_DRIVE_ROOT\" >&2\n"
								   "exit 7\n";
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

TEST_F(FStandInProcessTest, AProgramThatCannotStartGivesFalseAndTheWindowsError)
{
	int32 ReturnCode = 0;
	FString StdOut = TEXT("untouched");
	EXPECT_FALSE(FPlatformProcess::ExecProcess(TEXT("C:/Work/Engine/Binaries/Win64/UnrealPak.exe"), TEXT("-create=x"), &ReturnCode, &StdOut, nullptr));
	EXPECT_EQ(ReturnCode, 3) << "the folder is missing too";
	EXPECT_TRUE(StdOut.Equals(TEXT("untouched"), ESearchCase::CaseSensitive));
	EXPECT_EQ(LogLines(), (std::vector<std::string>{
							  "LogWindows: Warning: CreateProc failed: The system cannot find the path specified. (0x00000003)",
							  "LogWindows: Warning: URL: C:/Work/Engine/Binaries/Win64/UnrealPak.exe -create=x",
						  }));

	std::filesystem::create_directories(Host("C:/Work/Engine/Binaries/Win64"));
	EXPECT_FALSE(FPlatformProcess::ExecProcess(TEXT("C:/Work/Engine/Binaries/Win64/UnrealPak.exe"), TEXT(""), &ReturnCode, nullptr, nullptr));
	EXPECT_EQ(ReturnCode, 2);
	EXPECT_FALSE(FPlatformProcess::ExecProcess(TEXT("no-such-program.exe"), TEXT(""), &ReturnCode, nullptr, nullptr));
	EXPECT_EQ(ReturnCode, 2);
}

TEST_F(FStandInProcessTest, CmdExeMakesDirectoryLinksAndRemovesTreesWithoutFollowingLinks)
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

	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("cmd.exe /C mklink /d \"C:/pellow/DLC/Link\" \"C:/Cooked\""), &ReturnCode, &StdOut, &StdErr));
	EXPECT_EQ(ReturnCode, 1);
	EXPECT_EQ(StandIn::ToUtf8(StdErr), "Cannot create a file when that file already exists.\n");

	WriteFile("C:/pellow/cooking.txt", "x");
	EXPECT_EQ(std::system("cmd.exe /c rmdir /s /q \"C:/pellow/\""), 0);
	EXPECT_FALSE(Exists("C:/pellow"));
	EXPECT_EQ(ReadFile("C:/Cooked/Content/a.uasset"), "kept");

	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("cmd.exe"), TEXT("/c rmdir /s /q \"C:/pellow/\""), &ReturnCode, nullptr, &StdErr));
	EXPECT_EQ(ReturnCode, 2);
	EXPECT_EQ(StandIn::ToUtf8(StdErr), "The system cannot find the file specified.\n");
}
