#include "IUATHelperModule.h"
#include "Misc/MessageDialog.h"
#include "Misc/Paths.h"
#include "StandIn/Records/NotificationRecord.h"
#include "StandIn/Records/UatTaskRecord.h"
#include "StandIn/World.h"
#include "StandInBackgroundTasks.h"
#include "Styling/SlateBrush.h"
#include <chrono>
#include <initializer_list>
#include <utility>

#define LOCTEXT_NAMESPACE "UATHelper"

DEFINE_LOG_CATEGORY_STATIC(UATHelper, Log, All);

namespace
{
	using FNotificationState = StandIn::FNotificationRecord::ECompletionState;

	// FText::Format with named arguments, for the engine's "{TaskName} for {Platform}..." patterns.
	FText FormatNamed(const FText& Pattern, std::initializer_list<std::pair<const TCHAR*, FText>> Arguments)
	{
		FString Text = Pattern.ToString();
		for (const std::pair<const TCHAR*, FText>& Argument : Arguments)
		{
			Text.ReplaceInline(*FString::Printf(TEXT("{%s}"), Argument.first), *Argument.second.ToString(), ESearchCase::CaseSensitive);
		}
		return FText::FromString(Text);
	}

	void ShowNotification(const FText& Text, FNotificationState State)
	{
		StandIn::AppendToJournal(std::make_shared<StandIn::FNotificationRecord>(Text, State));
	}

	double SecondsSince(std::chrono::steady_clock::time_point Start)
	{
		return std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
	}

	// Lines and the exit code arrive on the process's monitor, as the engine's handlers receive them: a line
	// is logged there at once; the end changes the notification on the game thread and calls the callback
	// from the monitor, before the game thread gets to it.
	void ConnectHandlers(StandInProcesses::FMonitoredProcess& Process, const FText& PlatformDisplayName, const FText& TaskShortName, IUATHelperModule::UatTaskResultCallack ResultCallback)
	{
		const std::chrono::steady_clock::time_point Start = std::chrono::steady_clock::now();
		Process.OnOutput = [PlatformDisplayName, TaskShortName](const FString& Output) {
			if (!Output.IsEmpty() && !Output.Equals(TEXT("\r")))
			{
				UE_LOG(UATHelper, Log, TEXT("%s (%s): %s"), *TaskShortName.ToString(), *PlatformDisplayName.ToString(), *Output);
			}
		};
		Process.OnCompleted = [TaskShortName, ResultCallback, Start](int32 ReturnCode) {
			const double Seconds = SecondsSince(Start);
			const bool bSucceeded = ReturnCode == 0;
			const FText Text = bSucceeded ? FormatNamed(LOCTEXT("UatProcessSucceededNotification", "{TaskName} complete!"), {{TEXT("TaskName"), TaskShortName}})
										  : FormatNamed(LOCTEXT("PackagerFailedNotification", "{TaskName} failed!"), {{TEXT("TaskName"), TaskShortName}});
			StandInBackgroundTasks::DispatchToGameThread([Text, bSucceeded]() {
				ShowNotification(Text, bSucceeded ? FNotificationState::Success : FNotificationState::Fail);
			});
			if (ResultCallback)
			{
				ResultCallback(bSucceeded ? TEXT("Completed") : TEXT("Failed"), Seconds);
			}
			// The one exit code the engine raises to a message box: the game's binary is missing.
			const int32 MissingExecutable = 103;
			if (ReturnCode == MissingExecutable)
			{
				StandInBackgroundTasks::DispatchToGameThread([]() {
					FMessageDialog::Open(EAppMsgType::Ok, NSLOCTEXT("EditorAnalytics", "UATErrorMissingExecutable", "Missing UE4Game binary.\nYou may have to build the UE4 project with your IDE. Alternatively, build using UnrealBuildTool with the commandline:\nUE4Game <Platform> <Configuration>"));
				});
			}
		};
	}

	class FStandInUATHelperModule final : public IUATHelperModule
	{
	public:
		virtual void CreateUatTask(const FString& CommandLine, const FText& PlatformDisplayName, const FText& TaskName, const FText& TaskShortName, const FSlateBrush* TaskIcon, UatTaskResultCallack ResultCallback, const FString& ResultLocation) override
		{
			const FName IconResourceName = TaskIcon != nullptr ? TaskIcon->GetResourceName() : FName();
			StandIn::AppendToJournal(std::make_shared<StandIn::FUatTaskRecord>(CommandLine, PlatformDisplayName, TaskName, TaskShortName, IconResourceName, ResultLocation));

			const FString UatPath = FPaths::ConvertRelativePathToFull(FPaths::EngineDir() + TEXT("Build/BatchFiles/RunUAT.bat"));
			if (!FPaths::FileExists(UatPath))
			{
				FMessageDialog::Open(EAppMsgType::Ok, FormatNamed(LOCTEXT("RequiredFileNotFoundMessage", "A required file could not be found:\n{File}"), {{TEXT("File"), FText::FromString(UatPath)}}));
				return;
			}

			const auto Process = std::make_shared<StandInProcesses::FMonitoredProcess>(TEXT("cmd.exe"), FString::Printf(TEXT("/c \"\"%s\" %s\""), *UatPath, *CommandLine), FPaths::RootDir());
			ShowNotification(FormatNamed(LOCTEXT("UatTaskInProgressNotification", "{TaskName} for {Platform}..."), {{TEXT("TaskName"), TaskName}, {TEXT("Platform"), PlatformDisplayName}}), FNotificationState::Pending);
			ConnectHandlers(*Process, PlatformDisplayName, TaskShortName, ResultCallback);
			if (!Process->Launch())
			{
				ShowNotification(LOCTEXT("UatLaunchFailedNotification", "Failed to launch Unreal Automation Tool (UAT)!"), FNotificationState::Fail);
				if (ResultCallback)
				{
					ResultCallback(TEXT("FailedToStart"), 0.0f);
				}
				return;
			}
			StandInBackgroundTasks::Monitor(Process);
		}
	};
}

namespace StandInModules
{
	IModuleInterface* InitializeUATHelperModule()
	{
		return new FStandInUATHelperModule();
	}
}

namespace StandIn
{
	std::string FUatTaskRecord::Describe() const
	{
		return "Automation task: " + ToUtf8(TaskName.ToString()) + " (" + ToUtf8(PlatformDisplayName.ToString()) + "): " + ToUtf8(CommandLine);
	}
}

#undef LOCTEXT_NAMESPACE
