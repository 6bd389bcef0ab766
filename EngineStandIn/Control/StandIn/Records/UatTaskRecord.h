#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"

namespace StandIn
{
	// An automation-tool task handed to IUATHelperModule::CreateUatTask, recorded as it is handed over; what
	// the task then does (a message box, the cmd.exe process, the notification and its log lines) follows in
	// the journal.
	class FUatTaskRecord : public FJournalRecord
	{
	public:
		FUatTaskRecord(FString InCommandLine, FText InPlatformDisplayName, FText InTaskName, FText InTaskShortName, FName InIconResourceName, FString InResultLocation)
			: CommandLine(std::move(InCommandLine)), PlatformDisplayName(std::move(InPlatformDisplayName)), TaskName(std::move(InTaskName)), TaskShortName(std::move(InTaskShortName)), IconResourceName(InIconResourceName), ResultLocation(std::move(InResultLocation)) {}

		// "Automation task: <task name> (<platform>): <command line>"
		std::string Describe() const override;

		// Exactly as the automation tool would be handed it.
		FString CommandLine;
		FText PlatformDisplayName;
		FText TaskName;
		FText TaskShortName;
		// The image file of the notification's icon; None for a null brush or one without an image.
		FName IconResourceName;
		FString ResultLocation;
	};
}
