#include "HAL/PlatformProcess.h"
#include "StandIn/World.h"
#include "StandInWorld.h"
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

DEFINE_LOG_CATEGORY_STATIC(LogWindows, Log, All);

namespace
{
	// The argument rules of the Microsoft C runtime: blanks separate, quotes group, backslashes escape
	// only before a quote, and "" inside quotes is a literal quote.
	std::vector<std::string> SplitWindowsArguments(const std::string& CommandLine)
	{
		std::vector<std::string> Arguments;
		size_t Index = 0;
		while (Index < CommandLine.size())
		{
			while (Index < CommandLine.size() && (CommandLine[Index] == ' ' || CommandLine[Index] == '\t'))
			{
				++Index;
			}
			if (Index >= CommandLine.size())
			{
				break;
			}
			std::string Argument;
			bool bInQuotes = false;
			while (Index < CommandLine.size() && (bInQuotes || (CommandLine[Index] != ' ' && CommandLine[Index] != '\t')))
			{
				size_t Backslashes = 0;
				while (Index < CommandLine.size() && CommandLine[Index] == '\\')
				{
					++Backslashes;
					++Index;
				}
				if (Index < CommandLine.size() && CommandLine[Index] == '"')
				{
					Argument.append(Backslashes / 2, '\\');
					if (Backslashes % 2 == 1)
					{
						Argument += '"';
					}
					else if (bInQuotes && Index + 1 < CommandLine.size() && CommandLine[Index + 1] == '"')
					{
						Argument += '"';
						++Index;
					}
					else
					{
						bInQuotes = !bInQuotes;
					}
					++Index;
				}
				else
				{
					Argument.append(Backslashes, '\\');
					if (Index < CommandLine.size() && (bInQuotes || (CommandLine[Index] != ' ' && CommandLine[Index] != '\t')))
					{
						Argument += CommandLine[Index++];
					}
				}
			}
			Arguments.push_back(Argument);
		}
		return Arguments;
	}

	bool IsExecutableFile(const std::string& Path)
	{
		struct stat Info;
		return stat(Path.c_str(), &Info) == 0 && S_ISREG(Info.st_mode) && access(Path.c_str(), X_OK) == 0;
	}

	// A bare name is looked up on PATH; anything with a drive or a separator is a path of the Windows world.
	std::string ResolveProgram(const std::string& Program)
	{
		if (Program.find('/') != std::string::npos || Program.find('\\') != std::string::npos || Program.find(':') != std::string::npos)
		{
			return StandInWorld::ToHost(*StandIn::FromUtf8(Program));
		}
		const char* PathVariable = std::getenv("PATH");
		std::string SearchPath = PathVariable ? PathVariable : "";
		size_t Start = 0;
		while (Start <= SearchPath.size())
		{
			const size_t End = std::min(SearchPath.find(':', Start), SearchPath.size());
			const std::string Candidate = SearchPath.substr(Start, End - Start) + "/" + Program;
			if (IsExecutableFile(Candidate))
			{
				return Candidate;
			}
			Start = End + 1;
		}
		return std::string();
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

	void ReadBothPipes(int OutFd, int ErrFd, std::string& Out, std::string& Err)
	{
		struct pollfd Fds[2] = {{OutFd, POLLIN, 0}, {ErrFd, POLLIN, 0}};
		int Open = 2;
		char Buffer[4096];
		while (Open > 0)
		{
			if (poll(Fds, 2, -1) < 0)
			{
				if (errno == EINTR)
				{
					continue;
				}
				break;
			}
			for (int Which = 0; Which < 2; ++Which)
			{
				if (Fds[Which].fd < 0 || Fds[Which].revents == 0)
				{
					continue;
				}
				const ssize_t Count = read(Fds[Which].fd, Buffer, sizeof(Buffer));
				if (Count > 0)
				{
					(Which == 0 ? Out : Err).append(Buffer, (size_t)Count);
				}
				else if (Count == 0 || errno != EINTR)
				{
					close(Fds[Which].fd);
					Fds[Which].fd = -1;
					--Open;
				}
			}
		}
	}
}

bool FPlatformProcess::ExecProcess(const TCHAR* URL, const TCHAR* Params, int32* OutReturnCode, FString* OutStdOut, FString* OutStdErr, const TCHAR* OptionalWorkingDirectory)
{
	std::string Program = StandIn::ToUtf8(URL);
	if (Program.size() >= 2 && Program.front() == '"' && Program.back() == '"')
	{
		Program = Program.substr(1, Program.size() - 2);
	}
	const std::string HostProgram = ResolveProgram(Program);
	std::vector<std::string> Arguments = SplitWindowsArguments(StandIn::ToUtf8(Params ? Params : TEXT("")));
	Arguments.insert(Arguments.begin(), Program);
	const std::string WorkingDirectory = OptionalWorkingDirectory ? StandInWorld::ToHost(OptionalWorkingDirectory) : StandInWorld::CurrentDirectoryOnHost();

	int OutPipe[2], ErrPipe[2], ExecErrorPipe[2];
	if (pipe(OutPipe) != 0 || pipe(ErrPipe) != 0 || pipe2(ExecErrorPipe, O_CLOEXEC) != 0)
	{
		return false;
	}
	const pid_t Child = fork();
	if (Child == 0)
	{
		const int Null = open("/dev/null", O_RDWR);
		dup2(Null, STDIN_FILENO);
		// A detached process without capture writes nowhere.
		dup2(OutStdOut ? OutPipe[1] : Null, STDOUT_FILENO);
		dup2(OutStdErr ? ErrPipe[1] : Null, STDERR_FILENO);
		close(Null);
		close(OutPipe[0]);
		close(OutPipe[1]);
		close(ErrPipe[0]);
		close(ErrPipe[1]);
		close(ExecErrorPipe[0]);
		if (!WorkingDirectory.empty())
		{
			chdir(WorkingDirectory.c_str());
		}
		std::vector<char*> Argv;
		for (std::string& Argument : Arguments)
		{
			Argv.push_back(&Argument[0]);
		}
		Argv.push_back(nullptr);
		int ExecErrno = ENOENT;
		if (!HostProgram.empty())
		{
			execv(HostProgram.c_str(), Argv.data());
			ExecErrno = errno;
		}
		write(ExecErrorPipe[1], &ExecErrno, sizeof(ExecErrno));
		_exit(127);
	}
	close(OutPipe[1]);
	close(ErrPipe[1]);
	close(ExecErrorPipe[1]);

	int ExecErrno = 0;
	const bool bStartFailed = Child < 0 || read(ExecErrorPipe[0], &ExecErrno, sizeof(ExecErrno)) == (ssize_t)sizeof(ExecErrno);
	close(ExecErrorPipe[0]);
	std::string Out, Err;
	ReadBothPipes(OutPipe[0], ErrPipe[0], Out, Err);
	int Status = 0;
	if (Child > 0)
	{
		waitpid(Child, &Status, 0);
	}

	if (bStartFailed)
	{
		const int32 ErrorCode = WindowsErrorFor(HostProgram, Child < 0 ? errno : ExecErrno);
		UE_LOG(LogWindows, Warning, TEXT("CreateProc failed: %s (0x%08x)"), WindowsErrorMessage(ErrorCode), ErrorCode);
		UE_LOG(LogWindows, Warning, TEXT("URL: %s %s"), URL, Params);
		if (OutReturnCode)
		{
			*OutReturnCode = ErrorCode;
		}
		return false;
	}
	if (OutReturnCode)
	{
		*OutReturnCode = WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
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
