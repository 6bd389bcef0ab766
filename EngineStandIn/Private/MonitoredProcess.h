#pragma once

// The engine's FMonitoredProcess as its automation tasks use it: a hidden child whose standard output and
// error share one pipe, read while it runs and handed on a line at a time, then its exit code. The engine
// monitors it on a thread of its own; here each Tick is one pass of that thread's loop, driven by the
// background tasks. Not part of the control surface.
#include "CoreMinimal.h"
#include <functional>
#include <string>
#include <sys/types.h>

namespace StandInProcesses
{
	class FMonitoredProcess
	{
	public:
		FMonitoredProcess(FString InURL, FString InParams, FString InWorkingDir);
		// A child still running when its monitor goes is killed, as the engine's destructor cancels it.
		~FMonitoredProcess();
		FMonitoredProcess(const FMonitoredProcess&) = delete;
		FMonitoredProcess& operator=(const FMonitoredProcess&) = delete;

		// Starts the child with the command line CreateProc builds: the URL in quotes, a blank, the parameters.
		bool Launch();

		// Reads what the child printed and hands on every complete line; once the child has ended, its exit
		// code. False when it is no longer running.
		bool Tick();
		bool IsRunning() const { return Child > 0; }

		// The pipe's read end, to wait on between passes; -1 when there is none.
		int OutputDescriptor() const { return ReadPipe; }

		std::function<void(FString)> OnOutput;
		std::function<void(int32)> OnCompleted;

	private:
		void ReadAvailable();
		void HandOnCompleteLines();

		FString URL;
		FString Params;
		FString WorkingDir;
		pid_t Child = -1;
		int ReadPipe = -1;
		// Bytes not yet ending in a line break; as in the engine, a last line without one is never handed on.
		std::string Pending;
	};
}
