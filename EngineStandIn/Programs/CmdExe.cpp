// The stand-in's cmd.exe. Like the real one it reads its raw command line, not argv, takes its own switches,
// and runs the command after /C: the built-ins the editor asks for (mklink /d, rmdir), or any other program
// or batch file, found as cmd finds it, with the rest of the line as that program's command line. Paths are Windows paths,
// mapped into the sandbox through UGC_DRIVE_ROOT. What the real cmd.exe would do but this one does not
// know is refused with a message, never guessed at.
#include "Common/WindowsCommandLine.h"
#include "Common/WindowsDrivePath.h"
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace
{
	std::string Lower(std::string Text)
	{
		for (char& Char : Text)
		{
			Char = (char)std::tolower((unsigned char)Char);
		}
		return Text;
	}

	bool IsSwitch(const std::string& Word, const char* Name)
	{
		return Lower(Word) == Name;
	}

	int Refuse(const std::string& Why)
	{
		std::fprintf(stderr, "cmd.exe (stand-in): %s\n", Why.c_str());
		return 1;
	}

	size_t SkipBlanks(const std::string& Line, size_t Index)
	{
		while (Index < Line.size() && WindowsCommandLine::IsBlank(Line[Index]))
		{
			++Index;
		}
		return Index;
	}

	// A word as cmd reads one: up to a blank outside quotes. The quotes stay in the text.
	size_t EndOfWord(const std::string& Line, size_t Index)
	{
		bool bInQuotes = false;
		while (Index < Line.size() && (bInQuotes || !WindowsCommandLine::IsBlank(Line[Index])))
		{
			bInQuotes = Line[Index] == '"' ? !bInQuotes : bInQuotes;
			++Index;
		}
		return Index;
	}

	std::string WithoutQuotes(const std::string& Word)
	{
		std::string Plain;
		for (char Char : Word)
		{
			if (Char != '"')
			{
				Plain += Char;
			}
		}
		return Plain;
	}

	std::vector<std::string> Words(const std::string& Text)
	{
		std::vector<std::string> Result;
		for (size_t Index = SkipBlanks(Text, 0); Index < Text.size(); Index = SkipBlanks(Text, Index))
		{
			const size_t End = EndOfWord(Text, Index);
			Result.push_back(WithoutQuotes(Text.substr(Index, End - Index)));
			Index = End;
		}
		return Result;
	}

	bool IsInterpreterName(const std::string& Word)
	{
		const std::string Name = Lower(WithoutQuotes(Word));
		return Name == "cmd.exe" || Name == "cmd";
	}

	bool HasExtension(const std::string& Name)
	{
		const size_t Dot = Name.rfind('.');
		const size_t Separator = Name.find_last_of("/\\");
		return Dot != std::string::npos && (Separator == std::string::npos || Dot > Separator);
	}

	// As cmd: a name with a path is taken as it stands, a bare one from the current folder first and then
	// from PATH; a name without an extension is tried with each of PATHEXT's.
	std::string FindProgram(const std::string& Name)
	{
		static const char* const PathExtensions[] = {".com", ".exe", ".bat", ".cmd"};
		std::vector<std::string> Names;
		if (HasExtension(Name))
		{
			Names.push_back(Name);
		}
		else
		{
			for (const char* Extension : PathExtensions)
			{
				Names.push_back(Name + Extension);
			}
		}
		const bool bHasPath = Name.find_first_of("/\\:") != std::string::npos;
		for (const std::string& Candidate : Names)
		{
			std::string Found;
			if (bHasPath)
			{
				Found = WindowsCommandLine::IsExecutableFile(WindowsDrivePath::ToHostFromEnvironment(Candidate)) ? WindowsDrivePath::ToHostFromEnvironment(Candidate) : std::string();
			}
			else
			{
				Found = WindowsCommandLine::IsExecutableFile(Candidate) ? "./" + Candidate : WindowsCommandLine::FindOnPath(Candidate);
			}
			if (!Found.empty())
			{
				return Found;
			}
		}
		return std::string();
	}

	// cmd's rule for the text after /C (see "cmd /?"): quotes stay only when there is no /S, exactly two
	// of them, only a program name with a blank in it between them, and no special character; otherwise a
	// leading quote goes, and with it the last quote of the line.
	std::string ApplyQuoteRule(const std::string& Command, bool bStripQuotes)
	{
		if (Command.empty() || Command[0] != '"')
		{
			return Command;
		}
		const size_t Closing = Command.find('"', 1);
		const bool bTwoQuotes = Closing != std::string::npos && Command.find('"', Closing + 1) == std::string::npos;
		if (!bStripQuotes && bTwoQuotes)
		{
			const std::string Between = Command.substr(1, Closing - 1);
			if (Between.find_first_of("&<>()@^|") == std::string::npos && Between.find_first_of(" \t") != std::string::npos && !FindProgram(Between).empty())
			{
				return Command;
			}
		}
		const size_t Last = Command.rfind('"');
		return Last == 0 ? Command.substr(1) : Command.substr(1, Last - 1) + Command.substr(Last + 1);
	}

	int MakeDirectoryLink(const std::vector<std::string>& Arguments)
	{
		std::vector<std::string> Paths;
		bool bDirectory = false;
		for (const std::string& Argument : Arguments)
		{
			if (IsSwitch(Argument, "/d"))
			{
				bDirectory = true;
			}
			else
			{
				Paths.push_back(Argument);
			}
		}
		if (!bDirectory || Paths.size() != 2)
		{
			std::puts("The syntax of the command is incorrect.");
			return 1;
		}
		const fs::path Link = WindowsDrivePath::ToHostFromEnvironment(Paths[0]);
		const std::string Target = WindowsDrivePath::HasDriveLetter(Paths[1]) ? WindowsDrivePath::ToHostFromEnvironment(Paths[1]) : WindowsDrivePath::WithForwardSlashes(Paths[1]);
		std::error_code Error;
		if (fs::symlink_status(Link, Error).type() != fs::file_type::not_found)
		{
			std::fputs("Cannot create a file when that file already exists.\n", stderr);
			return 1;
		}
		if (!fs::is_directory(Link.parent_path(), Error))
		{
			std::fputs("The system cannot find the path specified.\n", stderr);
			return 1;
		}
		fs::create_directory_symlink(Target, Link, Error);
		if (Error)
		{
			std::fprintf(stderr, "%s\n", Error.message().c_str());
			return 1;
		}
		std::printf("symbolic link created for %s <<===>> %s\n", Paths[0].c_str(), Paths[1].c_str());
		return 0;
	}

	enum class EAnswer
	{
		Yes,
		No,
		None
	};

	// rmdir /s asks on standard output and reads the answer from standard input; it asks again until it
	// gets Y or N.
	EAnswer AskToRemove(const std::string& Path)
	{
		for (;;)
		{
			std::printf("%s, Are you sure (Y/N)? ", Path.c_str());
			std::fflush(stdout);
			std::string Answer;
			if (!std::getline(std::cin, Answer))
			{
				return EAnswer::None;
			}
			while (!Answer.empty() && (Answer.back() == '\r' || WindowsCommandLine::IsBlank(Answer.back())))
			{
				Answer.pop_back();
			}
			if (Answer == "Y" || Answer == "y")
			{
				return EAnswer::Yes;
			}
			if (Answer == "N" || Answer == "n")
			{
				return EAnswer::No;
			}
		}
	}

	int RemoveDirectory(const std::vector<std::string>& Arguments)
	{
		std::vector<std::string> Paths;
		bool bTree = false;
		bool bQuiet = false;
		for (const std::string& Argument : Arguments)
		{
			if (IsSwitch(Argument, "/s"))
			{
				bTree = true;
			}
			else if (IsSwitch(Argument, "/q"))
			{
				bQuiet = true;
			}
			else if (!Argument.empty() && Argument[0] == '/')
			{
				std::printf("Invalid switch - \"%s\".\n", Argument.substr(1).c_str());
				return 1;
			}
			else
			{
				Paths.push_back(Argument);
			}
		}
		if (Paths.empty())
		{
			std::puts("The syntax of the command is incorrect.");
			return 1;
		}
		int ExitCode = 0;
		for (const std::string& Path : Paths)
		{
			if (bTree && !bQuiet)
			{
				const EAnswer Answer = AskToRemove(Path);
				if (Answer == EAnswer::None)
				{
					return Refuse("no answer on standard input to \"Are you sure (Y/N)?\"");
				}
				if (Answer == EAnswer::No)
				{
					continue;
				}
			}
			const fs::path Host = WindowsDrivePath::ToHostFromEnvironment(Path);
			std::error_code Error;
			const fs::file_status Status = fs::symlink_status(Host, Error);
			if (Status.type() == fs::file_type::not_found)
			{
				std::fputs("The system cannot find the file specified.\n", stderr);
				ExitCode = 2;
				continue;
			}
			if (fs::is_symlink(Status) || !bTree)
			{
				// A link goes by itself; a plain rmdir only takes an empty folder.
				if (!fs::remove(Host, Error))
				{
					std::fputs("The directory is not empty.\n", stderr);
					ExitCode = 145;
				}
				continue;
			}
			// remove_all deletes links themselves and does not descend into them.
			fs::remove_all(Host, Error);
			if (Error)
			{
				std::fputs("Access is denied.\n", stderr);
				ExitCode = 5;
			}
		}
		return ExitCode;
	}

	// A batch file is a program of the sandbox like any other: started with the command as its line, it
	// receives the arguments the C runtime splits from it, as the program a real batch file hands %* to.
	int RunProgram(const std::string& Command, const std::string& Name)
	{
		const std::string HostProgram = FindProgram(Name);
		if (HostProgram.empty())
		{
			std::fprintf(stderr, "'%s' is not recognized as an internal or external command,\noperable program or batch file.\n", Name.c_str());
			return 9009;
		}
		int StartError = 0;
		const pid_t Child = WindowsCommandLine::Start(HostProgram, Command, WindowsCommandLine::FStandardHandles(), std::string(), StartError);
		if (Child < 0)
		{
			return Refuse("cannot start " + Name + ": " + std::strerror(StartError));
		}
		return WindowsCommandLine::WaitForExitCode(Child);
	}

	int RunCommand(const std::string& Command)
	{
		bool bInQuotes = false;
		for (char Char : Command)
		{
			bInQuotes = Char == '"' ? !bInQuotes : bInQuotes;
			// cmd expands variables even inside quotes.
			if (Char == '%' || (!bInQuotes && std::string("&|<>^").find(Char) != std::string::npos))
			{
				return Refuse("operators, redirection and variables are not provided: " + Command);
			}
		}
		const std::vector<std::string> CommandWords = Words(Command);
		if (CommandWords.empty())
		{
			return 0;
		}
		const std::string Name = Lower(CommandWords[0]);
		const std::vector<std::string> Arguments(CommandWords.begin() + 1, CommandWords.end());
		if (Name == "mklink")
		{
			return MakeDirectoryLink(Arguments);
		}
		if (Name == "rmdir" || Name == "rd")
		{
			return RemoveDirectory(Arguments);
		}
		return RunProgram(Command.substr(SkipBlanks(Command, 0)), CommandWords[0]);
	}
}

int main(int argc, char** argv)
{
	std::string Line;
	if (!WindowsCommandLine::ReadOwnLine(argc, argv, Line))
	{
		return Refuse("started without a Windows command line");
	}
	size_t Index = SkipBlanks(Line, WindowsCommandLine::EndOfProgramName(Line));
	// The interpreter's own name, said again before the switches, is passed over.
	const size_t FirstWordEnd = EndOfWord(Line, Index);
	if (Index < Line.size() && Line[Index] != '/' && IsInterpreterName(Line.substr(Index, FirstWordEnd - Index)))
	{
		Index = SkipBlanks(Line, FirstWordEnd);
	}
	bool bStripQuotes = false;
	for (;;)
	{
		if (Index >= Line.size())
		{
			return Refuse("no /C command; the interactive interpreter is not provided");
		}
		if (Line[Index] != '/' || Index + 1 >= Line.size())
		{
			return Refuse("unexpected text before the command: " + Line.substr(Index, EndOfWord(Line, Index) - Index));
		}
		const char Switch = (char)std::toupper((unsigned char)Line[Index + 1]);
		const size_t SwitchEnd = EndOfWord(Line, Index);
		if (Switch == 'C')
		{
			const std::string Command = Line.substr(SkipBlanks(Line, Index + 2));
			return RunCommand(ApplyQuoteRule(Command, bStripQuotes));
		}
		const std::string Word = Line.substr(Index, SwitchEnd - Index);
		// Only switches that leave the commands here as they are: no Unicode output (/U), no change to
		// command extensions (/Y, /E:OFF), no delayed expansion (/V:ON), no /K.
		const bool bPlain = SwitchEnd == Index + 2 && std::string("QDASX").find(Switch) != std::string::npos;
		const bool bValued = SwitchEnd > Index + 2 && Line[Index + 2] == ':' && (Switch == 'T' || Switch == 'F' || IsSwitch(Word, "/e:on"));
		if (!bPlain && !bValued)
		{
			return Refuse("switch not provided: " + Word);
		}
		bStripQuotes = bStripQuotes || Switch == 'S';
		Index = SkipBlanks(Line, SwitchEnd);
	}
}
