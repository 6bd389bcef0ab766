#include "IUATHelperModule.h"
#include "SandboxTest.h"
#include "StandIn/BackgroundTasks.h"
#include "StandIn/Records/NotificationRecord.h"
#include <chrono>

// IUATHelperModule::CreateUatTask against 4.26's UAT helper: RunUAT.bat through cmd.exe as a monitored
// process, its notification, its output in the log and its result.

namespace
{
	const char* const RunUatPath = "C:/Work/Engine/Build/BatchFiles/RunUAT.bat";

	struct FTaskResult
	{
		int Calls = 0;
		std::string Result;
		double Seconds = -1;
	};

	void StartTask(const TCHAR* CommandLine, FTaskResult& Result)
	{
		FModuleManager::LoadModuleChecked<IUATHelperModule>(TEXT("UATHelper")).CreateUatTask(CommandLine, FText::FromString(TEXT("Windows")), FText::FromString(TEXT("Cooking MyRoute, long")), FText::FromString(TEXT("Cooking MyRoute")), nullptr, [&Result](FString Text, double Seconds) {
			++Result.Calls;
			Result.Result = StandIn::ToUtf8(Text);
			Result.Seconds = Seconds;
		});
	}

	// What a task leaves in the journal, in order: message boxes, notifications, child processes and the
	// helper's log lines.
	std::vector<std::string> TaskLines()
	{
		std::vector<std::string> Lines;
		for (const std::shared_ptr<const StandIn::FJournalRecord>& Record : StandIn::Journal())
		{
			const std::string Line = Record->Describe();
			if (Line.rfind("Message: ", 0) == 0 || Line.rfind("Notification: ", 0) == 0 || Line.rfind("UATHelper: ", 0) == 0 || Line.rfind("Process: ", 0) == 0)
			{
				Lines.push_back(Line);
			}
		}
		return Lines;
	}
}

class FAutomationTaskTest : public FSandboxTest
{
protected:
	void WriteRunUat(const std::string& Script) const
	{
		WriteFile(RunUatPath, "#!/bin/sh\n" + Script);
		std::filesystem::permissions(Host(RunUatPath), std::filesystem::perms::owner_all);
	}
};

TEST_F(FAutomationTaskTest, WithoutRunUatTheTaskShowsTheMissingFileAndStopsThere)
{
	FTaskResult Result;
	StartTask(TEXT("BuildDLC"), Result);
	StandIn::WaitForBackgroundTasks();

	EXPECT_EQ(TaskLines(), std::vector<std::string>{"Message: A required file could not be found:\nC:/Work/Engine/Build/BatchFiles/RunUAT.bat"});
	EXPECT_EQ(Result.Calls, 0);
}

TEST_F(FAutomationTaskTest, RunUatGetsTheCommandLineThroughCmdAndEachLineItPrintsIsLoggedUnderTheShortName)
{
	WriteRunUat("for Argument in \"$@\"; do echo \"$Argument\"; done\nprintf 'crlf\\r\\n\\r\\nlast line without an end'\n");

	FTaskResult Result;
	StartTask(TEXT("BuildDLC -Project=\"C:/My Work/P.uproject\" -ue4exe=\"C:/Work/\"Moravane/x.exe -dlcName=\"N\",\"N\" "), Result);
	EXPECT_EQ(Result.Calls, 0);
	StandIn::WaitForBackgroundTasks();

	EXPECT_EQ(TaskLines(), (std::vector<std::string>{
							   "Notification: Cooking MyRoute, long for Windows...",
							   "Process: \"cmd.exe\" /c \"\"C:/Work/Engine/Build/BatchFiles/RunUAT.bat\" BuildDLC -Project=\"C:/My Work/P.uproject\" -ue4exe=\"C:/Work/\"Moravane/x.exe -dlcName=\"N\",\"N\" \"",
							   "UATHelper: Cooking MyRoute (Windows): BuildDLC",
							   "UATHelper: Cooking MyRoute (Windows): -Project=C:/My Work/P.uproject",
							   "UATHelper: Cooking MyRoute (Windows): -ue4exe=C:/Work/Moravane/x.exe",
							   "UATHelper: Cooking MyRoute (Windows): -dlcName=N,N",
							   "UATHelper: Cooking MyRoute (Windows): crlf",
							   "Notification: Cooking MyRoute complete!",
						   }));
	EXPECT_EQ(Result.Calls, 1);
	EXPECT_EQ(Result.Result, "Completed");
	EXPECT_GE(Result.Seconds, 0.0);
}

TEST_F(FAutomationTaskTest, LinesArriveWhileTheToolRunsAndTheEndIsShownOnlyAfterIt)
{
	WriteRunUat("echo started\nwhile [ ! -e \"$UGC_DRIVE_ROOT/C/go\" ]; do sleep 0.01; done\n");
	FTaskResult Result;
	StartTask(TEXT("BuildDLC"), Result);

	const std::chrono::steady_clock::time_point GiveUp = std::chrono::steady_clock::now() + std::chrono::seconds(10);
	while (LogLines().empty() && std::chrono::steady_clock::now() < GiveUp)
	{
		StandIn::TickBackgroundTasks();
	}
	const std::vector<std::string> WhileRunning = TaskLines();
	WriteFile("C:/go", "");
	StandIn::WaitForBackgroundTasks();

	EXPECT_EQ(WhileRunning.back(), "UATHelper: Cooking MyRoute (Windows): started");
	EXPECT_EQ(TaskLines().back(), "Notification: Cooking MyRoute complete!");
	EXPECT_FALSE(StandIn::HasBackgroundTasks());
}

TEST_F(FAutomationTaskTest, ANonZeroExitCodeFailsTheTask)
{
	WriteRunUat("exit 1\n");

	FTaskResult Result;
	StartTask(TEXT("BuildDLC"), Result);
	StandIn::WaitForBackgroundTasks();

	EXPECT_EQ(TaskLines().back(), "Notification: Cooking MyRoute failed!");
	EXPECT_EQ(StandIn::JournalRecords<StandIn::FNotificationRecord>().back()->State, StandIn::FNotificationRecord::ECompletionState::Fail);
	EXPECT_EQ(Result.Result, "Failed");
}

TEST_F(FAutomationTaskTest, TheMissingGameBinaryCodeIsRaisedToAMessageBoxAfterTheFailure)
{
	WriteRunUat("exit 103\n");

	FTaskResult Result;
	StartTask(TEXT("BuildDLC"), Result);
	StandIn::WaitForBackgroundTasks();

	const std::vector<std::string> Lines = TaskLines();
	EXPECT_EQ(std::vector<std::string>(Lines.end() - 2, Lines.end()), (std::vector<std::string>{
																		  "Notification: Cooking MyRoute failed!",
																		  "Message: Missing UE4Game binary.\nYou may have to build the UE4 project with your IDE. Alternatively, build using UnrealBuildTool with the commandline:\nUE4Game <Platform> <Configuration>",
																	  }));
}
