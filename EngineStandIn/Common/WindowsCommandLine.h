#pragma once

// Shared by the stand-in engine and its helper programs: a Windows program receives one raw command line,
// which its C runtime splits into argv. A child started here gets both: the argv that split gives, and the
// line itself in an environment variable, so that a program that reads its line as Windows programs may
// (cmd.exe) sees exactly what CreateProcess would have handed it.
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <spawn.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace WindowsCommandLine
{
	inline const char* Variable()
	{
		return "UGC_WINDOWS_COMMAND_LINE";
	}

	inline bool IsBlank(char Char)
	{
		return Char == ' ' || Char == '\t';
	}

	// Where argv[0] ends. The C runtime lets quotes group it but gives backslashes no meaning there.
	inline size_t EndOfProgramName(const std::string& Line, std::string* OutName = nullptr)
	{
		size_t Index = 0;
		bool bInQuotes = false;
		while (Index < Line.size() && (bInQuotes || !IsBlank(Line[Index])))
		{
			if (Line[Index] == '"')
			{
				bInQuotes = !bInQuotes;
			}
			else if (OutName)
			{
				*OutName += Line[Index];
			}
			++Index;
		}
		return Index;
	}

	// argv as the Microsoft C runtime builds it. After argv[0]: blanks separate, quotes group, backslashes
	// escape only before a quote, and "" inside quotes is a literal quote.
	inline std::vector<std::string> SplitArguments(const std::string& Line)
	{
		std::vector<std::string> Arguments(1);
		size_t Index = EndOfProgramName(Line, &Arguments[0]);
		while (Index < Line.size())
		{
			while (Index < Line.size() && IsBlank(Line[Index]))
			{
				++Index;
			}
			if (Index >= Line.size())
			{
				break;
			}
			std::string Argument;
			bool bInQuotes = false;
			while (Index < Line.size() && (bInQuotes || !IsBlank(Line[Index])))
			{
				size_t Backslashes = 0;
				while (Index < Line.size() && Line[Index] == '\\')
				{
					++Backslashes;
					++Index;
				}
				if (Index < Line.size() && Line[Index] == '"')
				{
					Argument.append(Backslashes / 2, '\\');
					if (Backslashes % 2 == 1)
					{
						Argument += '"';
					}
					else if (bInQuotes && Index + 1 < Line.size() && Line[Index + 1] == '"')
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
					if (Index < Line.size() && (bInQuotes || !IsBlank(Line[Index])))
					{
						Argument += Line[Index++];
					}
				}
			}
			Arguments.push_back(Argument);
		}
		return Arguments;
	}

	// The line this process was started with, if the launcher gave one. A line inherited from a parent that
	// started this process some other way would not split into this argv, so it is not taken for ours.
	inline bool ReadOwnLine(int argc, char** argv, std::string& OutLine)
	{
		const char* Line = std::getenv(Variable());
		if (!Line || SplitArguments(Line) != std::vector<std::string>(argv, argv + argc))
		{
			return false;
		}
		OutLine = Line;
		return true;
	}

	inline bool IsExecutableFile(const std::string& Path)
	{
		struct stat Info;
		return stat(Path.c_str(), &Info) == 0 && S_ISREG(Info.st_mode) && access(Path.c_str(), X_OK) == 0;
	}

	// The host's PATH, first match; empty if none.
	inline std::string FindOnPath(const std::string& Name)
	{
		const char* PathVariable = std::getenv("PATH");
		const std::string SearchPath = PathVariable ? PathVariable : "";
		size_t Start = 0;
		while (Start <= SearchPath.size())
		{
			const size_t Separator = SearchPath.find(':', Start);
			const size_t End = Separator == std::string::npos ? SearchPath.size() : Separator;
			const std::string Folder = SearchPath.substr(Start, End - Start);
			const std::string Candidate = (Folder.empty() ? "." : Folder) + "/" + Name;
			if (IsExecutableFile(Candidate))
			{
				return Candidate;
			}
			Start = End + 1;
		}
		return std::string();
	}

	struct FStandardHandles
	{
		// -1 leaves the handle the child inherits from this process.
		int Input = -1;
		int Output = -1;
		int Error = -1;
	};

	// Starts HostProgram with the argv that Line splits into and Line in its environment. Returns the
	// child's id, or -1 with OutError holding why exec failed.
	inline pid_t Start(const std::string& HostProgram, const std::string& Line, const FStandardHandles& Handles, const std::string& WorkingDirectory, int& OutError)
	{
		std::vector<std::string> Arguments = SplitArguments(Line);
		std::vector<char*> Argv;
		for (std::string& Argument : Arguments)
		{
			Argv.push_back(&Argument[0]);
		}
		Argv.push_back(nullptr);

		const std::string Prefix = std::string(Variable()) + "=";
		std::vector<std::string> Environment;
		for (char** Entry = environ; *Entry; ++Entry)
		{
			if (std::strncmp(*Entry, Prefix.c_str(), Prefix.size()) != 0)
			{
				Environment.push_back(*Entry);
			}
		}
		Environment.push_back(Prefix + Line);
		std::vector<char*> Envp;
		for (std::string& Entry : Environment)
		{
			Envp.push_back(&Entry[0]);
		}
		Envp.push_back(nullptr);

		posix_spawn_file_actions_t Actions;
		posix_spawn_file_actions_init(&Actions);
		const int Targets[3] = {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
		const int Sources[3] = {Handles.Input, Handles.Output, Handles.Error};
		for (int Which = 0; Which < 3; ++Which)
		{
			if (Sources[Which] >= 0)
			{
				posix_spawn_file_actions_adddup2(&Actions, Sources[Which], Targets[Which]);
			}
		}
		if (!WorkingDirectory.empty())
		{
			posix_spawn_file_actions_addchdir_np(&Actions, WorkingDirectory.c_str());
		}
		pid_t Child = -1;
		OutError = HostProgram.empty() ? ENOENT : posix_spawn(&Child, HostProgram.c_str(), &Actions, nullptr, Argv.data(), Envp.data());
		posix_spawn_file_actions_destroy(&Actions);
		return OutError == 0 ? Child : -1;
	}

	// Windows has no signals; a child killed by one is given a code that cannot be mistaken for success.
	inline int ExitCodeOf(int Status)
	{
		return WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
	}

	inline int WaitForExitCode(pid_t Child)
	{
		int Status = 0;
		while (waitpid(Child, &Status, 0) < 0 && errno == EINTR)
		{
		}
		return ExitCodeOf(Status);
	}
}
