#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"

namespace StandIn
{
	// A child program started by FPlatformProcess::ExecProcess, with the command line exactly as Windows'
	// CreateProcess would have been handed it: the URL in double quotes (unless it already starts with
	// one), a blank, then the parameters as given.
	class FChildProcessRecord : public FJournalRecord
	{
	public:
		explicit FChildProcessRecord(FString InCommandLine)
			: CommandLine(std::move(InCommandLine)) {}

		// "Process: <command line>"
		std::string Describe() const override;
		// Not shown in the editor.
		std::string ShownLine() const override { return std::string(); }

		FString CommandLine;
	};

	// A command handed to the C runtime's system(), byte for byte.
	class FSystemCallRecord : public FJournalRecord
	{
	public:
		explicit FSystemCallRecord(std::string InCommand)
			: Command(std::move(InCommand)) {}

		// "system: <command>"
		std::string Describe() const override;
		// Not shown in the editor.
		std::string ShownLine() const override { return std::string(); }

		std::string Command;
	};
}
