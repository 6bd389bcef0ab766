#include "HAL/PlatformProcess.h"
#include "Common/WindowsCommandLine.h"
#include "StandIn/Records/ProcessRecords.h"
#include "StandIn/World.h"
#include "StandInProcesses.h"
#include "StandInWorld.h"
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

DEFINE_LOG_CATEGORY_STATIC(LogWindows, Log, All);

namespace
{
	// CreateProcess appends ".exe" to a program name without an extension.
	std::string WithDefaultExtension(const std::string& Program)
	{
		const size_t NameStart = Program.find_last_of("/\\:");
		const size_t Dot = Program.rfind('.');
		const bool bHasExtension = Dot != std::string::npos && (NameStart == std::string::npos || Dot > NameStart);
		return bHasExtension ? Program : Program + ".exe";
	}

	// A bare name is looked up on PATH; anything with a drive or a separator is a path of the Windows world.
	std::string ResolveProgram(const std::string& Program)
	{
		if (Program.find_first_of("/\\:") != std::string::npos)
		{
			return StandInWorld::ToHost(*StandIn::FromUtf8(Program));
		}
		return WindowsCommandLine::FindOnPath(Program);
	}

	// The Win32 error CreateProcess would give for a program that cannot start.
	int32 WindowsErrorFor(const std::string& HostProgram, int ExecErrno)
	{
		if (ExecErrno == ENOEXEC)
		{
			return 193;
		}
		if (ExecErrno == EACCES && access(HostProgram.c_str(), F_OK) == 0)
		{
			return 5;
		}
		const size_t LastSlash = HostProgram.rfind('/');
		struct stat Info;
		if (LastSlash != std::string::npos && stat(HostProgram.substr(0, LastSlash).c_str(), &Info) != 0)
		{
			return 3;
		}
		return 2;
	}

	const TCHAR* WindowsErrorMessage(int32 ErrorCode)
	{
		switch (ErrorCode)
		{
		case 3:
			return TEXT("The system cannot find the path specified.");
		case 5:
			return TEXT("Access is denied.");
		case 193:
			return TEXT("%1 is not a valid Win32 application.");
		default:
			return TEXT("The system cannot find the file specified.");
		}
	}

	// As PeekNamedPipe then ReadFile: only what the pipe holds right now, never waiting for more.
	void ReadAvailable(int Fd, std::string& Into)
	{
		int Available = 0;
		if (Fd < 0 || ioctl(Fd, FIONREAD, &Available) != 0 || Available <= 0)
		{
			return;
		}
		std::vector<char> Buffer((size_t)Available);
		ssize_t Count;
		while ((Count = read(Fd, Buffer.data(), Buffer.size())) < 0 && errno == EINTR)
		{
		}
		if (Count > 0)
		{
			Into.append(Buffer.data(), (size_t)Count);
		}
	}

	// The engine reads the pipes while the child runs and once more after it has ended, then lets them go:
	// whatever a grandchild that still holds them writes later is not waited for.
	int ReadPipesUntilExit(pid_t Child, int OutFd, int ErrFd, std::string& Out, std::string& Err)
	{
		// Wakes on the child's end as well as on output, instead of polling on a timer.
		const int ChildFd = (int)syscall(SYS_pidfd_open, Child, 0);
		struct pollfd Fds[3] = {{OutFd, POLLIN, 0}, {ErrFd, POLLIN, 0}, {ChildFd, POLLIN, 0}};
		int Status = 0;
		for (;;)
		{
			ReadAvailable(Fds[0].fd, Out);
			ReadAvailable(Fds[1].fd, Err);
			pid_t Waited;
			while ((Waited = waitpid(Child, &Status, WNOHANG)) < 0 && errno == EINTR)
			{
			}
			if (Waited != 0)
			{
				break;
			}
			if (poll(Fds, 3, ChildFd < 0 ? 10 : -1) < 0 && errno != EINTR)
			{
				break;
			}
			for (int Which = 0; Which < 2; ++Which)
			{
				// A pipe whose writers are all gone would wake poll for ever; the child may still run.
				int Available = 0;
				if (Fds[Which].fd >= 0 && (Fds[Which].revents & (POLLHUP | POLLERR)) && ioctl(Fds[Which].fd, FIONREAD, &Available) == 0 && Available == 0)
				{
					Fds[Which].fd = -1;
				}
			}
		}
		ReadAvailable(Fds[0].fd, Out);
		ReadAvailable(Fds[1].fd, Err);
		if (ChildFd >= 0)
		{
			close(ChildFd);
		}
		return WindowsCommandLine::ExitCodeOf(Status);
	}
}

namespace StandIn
{
	std::string FChildProcessRecord::Describe() const
	{
		return "Process: " + ToUtf8(CommandLine);
	}
}

namespace StandInProcesses
{
	pid_t Start(const FString& CommandLine, const TCHAR* URL, const TCHAR* Params, const WindowsCommandLine::FStandardHandles& Handles, const TCHAR* WorkingDirectory, int32& OutWindowsError)
	{
		// Recorded before the start, so a program that cannot start still shows in the journal, followed by
		// the warnings that say why: the editor did ask for it, and a reader looking for a step that did
		// nothing should find the attempt.
		StandIn::AppendToJournal(std::make_shared<StandIn::FChildProcessRecord>(CommandLine));
		const std::string Line = StandIn::ToUtf8(CommandLine);
		std::string Program;
		WindowsCommandLine::EndOfProgramName(Line, &Program);
		const std::string HostProgram = ResolveProgram(WithDefaultExtension(Program));
		const std::string HostWorkingDirectory = WorkingDirectory ? StandInWorld::ToHost(WorkingDirectory) : StandInWorld::CurrentDirectoryOnHost();
		int StartError = 0;
		const pid_t Child = WindowsCommandLine::Start(HostProgram, Line, Handles, HostWorkingDirectory, StartError);
		OutWindowsError = 0;
		if (Child < 0)
		{
			OutWindowsError = WindowsErrorFor(HostProgram, StartError);
			UE_LOG(LogWindows, Warning, TEXT("CreateProc failed: %s (0x%08x)"), WindowsErrorMessage(OutWindowsError), OutWindowsError);
			UE_LOG(LogWindows, Warning, TEXT("URL: %s %s"), URL, Params);
		}
		return Child;
	}
}

bool FPlatformProcess::ExecProcess(const TCHAR* URL, const TCHAR* Params, int32* OutReturnCode, FString* OutStdOut, FString* OutStdErr, const TCHAR* OptionalWorkingDirectory)
{
	// The engine quotes the URL unless it already starts with a quote, and passes the parameters as given.
	const FString CommandLine = URL[0] != TEXT('"') ? FString::Printf(TEXT("\"%s\" %s"), URL, Params) : FString::Printf(TEXT("%s %s"), URL, Params);
	const bool bCapture = OutStdOut || OutStdErr;
	int OutPipe[2] = {-1, -1};
	int ErrPipe[2] = {-1, -1};
	if (bCapture && (pipe2(OutPipe, O_CLOEXEC) != 0 || pipe2(ErrPipe, O_CLOEXEC) != 0))
	{
		return false;
	}
	// The editor is a windowed program: its children find nothing on standard input. A detached child
	// without capture writes nowhere.
	const int Null = open("/dev/null", O_RDWR | O_CLOEXEC);
	WindowsCommandLine::FStandardHandles Handles;
	Handles.Input = Null;
	Handles.Output = OutStdOut ? OutPipe[1] : Null;
	Handles.Error = OutStdErr ? ErrPipe[1] : Null;
	int32 WindowsError = 0;
	const pid_t Child = StandInProcesses::Start(CommandLine, URL, Params, Handles, OptionalWorkingDirectory, WindowsError);
	close(Null);
	if (bCapture)
	{
		close(OutPipe[1]);
		close(ErrPipe[1]);
	}

	if (Child < 0)
	{
		if (bCapture)
		{
			close(OutPipe[0]);
			close(ErrPipe[0]);
		}
		if (OutReturnCode)
		{
			*OutReturnCode = WindowsError;
		}
		return false;
	}

	int ExitCode = 0;
	std::string Out, Err;
	if (bCapture)
	{
		ExitCode = ReadPipesUntilExit(Child, OutStdOut ? OutPipe[0] : -1, OutStdErr ? ErrPipe[0] : -1, Out, Err);
		close(OutPipe[0]);
		close(ErrPipe[0]);
	}
	else
	{
		ExitCode = WindowsCommandLine::WaitForExitCode(Child);
	}
	if (OutReturnCode)
	{
		*OutReturnCode = ExitCode;
	}
	if (OutStdOut && !Out.empty())
	{
		*OutStdOut = StandIn::FromUtf8(Out);
	}
	if (OutStdErr && !Err.empty())
	{
		*OutStdErr = StandIn::FromUtf8(Err);
	}
	return true;
}
