#include "CommandLine.h"

const char* UsageText()
{
	return "Usage: ugc-editor --root DIR [--launch-dir PATH] [--project PATH] COMMAND [OPTIONS]\n"
		   "\n"
		   "Runs the UGCEditor module in a headless editor on a Windows world kept in DIR, where the\n"
		   "drive path C:/x is the file DIR/C/x, and prints the editor's log lines and message boxes.\n"
		   "\n"
		   "  --root DIR         the folder that holds the Windows drives (required)\n"
		   "  --launch-dir PATH  the editor's launch folder, a Windows path (default C:/Work/)\n"
		   "  --project PATH     the game project file, a Windows path\n"
		   "                     (default C:/Work/Moravane/Moravane.uproject)\n"
		   "  --help             this text\n"
		   "\n"
		   "Commands:\n"
		   "  distribute [--calverly5] [--plugin NAME [--original] [--dlcs TEXT]]...\n"
		   "      Opens the paking dialog and operates it as a person would: for each --plugin, in\n"
		   "      order, clicks \"Add Plugin\", chooses NAME in the new entry's combo box, ticks\n"
		   "      \"Original Plugin\" for --original and commits TEXT in the entry's DLC box for\n"
		   "      --dlcs; ticks \"Calverly5 Plugin\" for --calverly5; then clicks \"Distribute\".\n"
		   "\n"
		   "Exit status: 0 when the session ran, 2 for a usage error or a plugin the dialog does not offer.\n";
}

namespace
{
	std::string TakeValue(const std::vector<std::string>& Arguments, size_t& Index)
	{
		const std::string& Option = Arguments[Index];
		if (Index + 1 >= Arguments.size())
		{
			throw FUsageError{Option + " needs a value"};
		}
		return Arguments[++Index];
	}

	// The editor's own options may stand before or after the command.
	bool TakeEditorOption(const std::vector<std::string>& Arguments, size_t& Index, FEditorCommandLine& Result)
	{
		const std::string& Argument = Arguments[Index];
		std::string* Target = Argument == "--root" ? &Result.Root : Argument == "--launch-dir" ? &Result.LaunchDir
																: Argument == "--project"	   ? &Result.ProjectFile
																							   : nullptr;
		if (Target)
		{
			*Target = TakeValue(Arguments, Index);
		}
		return Target != nullptr;
	}

	void TakeDistributeOption(const std::vector<std::string>& Arguments, size_t& Index, FEditorCommandLine& Result)
	{
		const std::string& Argument = Arguments[Index];
		if (Argument == "--calverly5")
		{
			Result.bCalverly5 = true;
		}
		else if (Argument == "--plugin")
		{
			Result.Plugins.push_back({TakeValue(Arguments, Index), false, std::nullopt});
		}
		else if (Argument == "--original" || Argument == "--dlcs")
		{
			if (Result.Plugins.empty())
			{
				throw FUsageError{Argument + " belongs to a --plugin and must follow one"};
			}
			if (Argument == "--original")
			{
				Result.Plugins.back().bOriginal = true;
			}
			else
			{
				Result.Plugins.back().RequiredDLCs = TakeValue(Arguments, Index);
			}
		}
		else
		{
			throw FUsageError{"unknown option for distribute: " + Argument};
		}
	}
}

FEditorCommandLine ParseCommandLine(const std::vector<std::string>& Arguments)
{
	FEditorCommandLine Result;
	for (size_t Index = 0; Index < Arguments.size(); ++Index)
	{
		const std::string& Argument = Arguments[Index];
		if (Argument == "--help" || Argument == "-h")
		{
			Result.bHelp = true;
			return Result;
		}
		if (TakeEditorOption(Arguments, Index, Result))
		{
			continue;
		}
		if (!Result.Command.empty())
		{
			TakeDistributeOption(Arguments, Index, Result);
		}
		else if (Argument.rfind("-", 0) == 0)
		{
			throw FUsageError{"unknown option: " + Argument};
		}
		else if (Argument != "distribute")
		{
			throw FUsageError{"unknown command: " + Argument};
		}
		else
		{
			Result.Command = Argument;
		}
	}
	if (Result.Root.empty())
	{
		throw FUsageError{"--root DIR is required"};
	}
	if (Result.Command.empty())
	{
		throw FUsageError{"no command given"};
	}
	return Result;
}
