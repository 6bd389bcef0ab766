// The stand-in's cmd.exe: the two commands the editor asks of the Windows command interpreter, with
// Windows' messages and exit codes. Paths are Windows paths, mapped into the sandbox through
// UGC_DRIVE_ROOT. Directory links are removed, never followed.
#include "Common/WindowsDrivePath.h"
#include <cstdio>
#include <filesystem>
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

	int RemoveDirectoryTree(const std::vector<std::string>& Arguments)
	{
		std::vector<std::string> Paths;
		bool bTree = false;
		for (const std::string& Argument : Arguments)
		{
			if (IsSwitch(Argument, "/s"))
			{
				bTree = true;
			}
			else if (!IsSwitch(Argument, "/q"))
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
}

int main(int argc, char** argv)
{
	std::vector<std::string> Words(argv + 1, argv + argc);
	size_t Index = 0;
	// Words before /C (such as a repeated "cmd.exe") are passed over, as cmd does.
	while (Index < Words.size() && !IsSwitch(Words[Index], "/c") && !IsSwitch(Words[Index], "/k"))
	{
		++Index;
	}
	if (Index + 1 >= Words.size())
	{
		return 0;
	}
	const std::string Command = Lower(Words[Index + 1]);
	const std::vector<std::string> Arguments(Words.begin() + (long)Index + 2, Words.end());
	if (Command == "mklink")
	{
		return MakeDirectoryLink(Arguments);
	}
	if (Command == "rmdir" || Command == "rd")
	{
		return RemoveDirectoryTree(Arguments);
	}
	std::fprintf(stderr, "'%s' is not recognized as an internal or external command,\noperable program or batch file.\n", Words[Index + 1].c_str());
	return 1;
}
