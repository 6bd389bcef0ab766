#include "MonitoredProcess.h"
#include "StandIn/World.h"
#include "StandInProcesses.h"
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace StandInProcesses
{
	FMonitoredProcess::FMonitoredProcess(FString InURL, FString InParams, FString InWorkingDir)
		: URL(std::move(InURL)), Params(std::move(InParams)), WorkingDir(std::move(InWorkingDir))
	{
	}

	FMonitoredProcess::~FMonitoredProcess()
	{
		if (Child > 0)
		{
			kill(Child, SIGKILL);
			WindowsCommandLine::WaitForExitCode(Child);
		}
		if (ReadPipe >= 0)
		{
			close(ReadPipe);
		}
	}

	bool FMonitoredProcess::Launch()
	{
		int Pipe[2];
		if (pipe2(Pipe, O_CLOEXEC) != 0)
		{
			return false;
		}
		const int Null = open("/dev/null", O_RDONLY | O_CLOEXEC);
		WindowsCommandLine::FStandardHandles Handles;
		Handles.Input = Null;
		Handles.Output = Pipe[1];
		Handles.Error = Pipe[1];
		int32 WindowsError = 0;
		Child = Start(FString::Printf(TEXT("\"%s\" %s"), *URL, *Params), *URL, *Params, Handles, *WorkingDir, WindowsError);
		close(Null);
		close(Pipe[1]);
		if (Child < 0)
		{
			close(Pipe[0]);
			return false;
		}
		ReadPipe = Pipe[0];
		fcntl(ReadPipe, F_SETFL, O_NONBLOCK);
		return true;
	}

	void FMonitoredProcess::ReadAvailable()
	{
		char Buffer[4096];
		ssize_t Count;
		while ((Count = read(ReadPipe, Buffer, sizeof(Buffer))) > 0 || (Count < 0 && errno == EINTR))
		{
			if (Count > 0)
			{
				Pending.append(Buffer, (size_t)Count);
			}
		}
	}

	// A line ends at "\r", "\n" or "\r\n".
	void FMonitoredProcess::HandOnCompleteLines()
	{
		size_t LineStart = 0;
		for (size_t Index = 0; Index < Pending.size(); ++Index)
		{
			if (Pending[Index] != '\r' && Pending[Index] != '\n')
			{
				continue;
			}
			const std::string Line = Pending.substr(LineStart, Index - LineStart);
			if (Pending[Index] == '\r' && Index + 1 < Pending.size() && Pending[Index + 1] == '\n')
			{
				++Index;
			}
			LineStart = Index + 1;
			if (OnOutput)
			{
				OnOutput(StandIn::FromUtf8(Line));
			}
		}
		Pending.erase(0, LineStart);
	}

	bool FMonitoredProcess::Tick()
	{
		if (Child <= 0)
		{
			return false;
		}
		ReadAvailable();
		int Status = 0;
		pid_t Waited;
		while ((Waited = waitpid(Child, &Status, WNOHANG)) < 0 && errno == EINTR)
		{
		}
		if (Waited == 0)
		{
			HandOnCompleteLines();
			return true;
		}
		// What the child wrote just before it ended is read too, rather than lost to the moment between the
		// engine's last read and its look at the process.
		ReadAvailable();
		HandOnCompleteLines();
		close(ReadPipe);
		ReadPipe = -1;
		Child = -1;
		// The engine's answer when the exit code cannot be had.
		const int32 ExitCode = Waited > 0 ? WindowsCommandLine::ExitCodeOf(Status) : -1;
		if (OnCompleted)
		{
			OnCompleted(ExitCode);
		}
		return false;
	}
}
