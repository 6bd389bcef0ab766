#include "CommandLine.h"

const char* UsageText()
{
	return "Usage: ugc-editor --root DIR [--launch-dir PATH] [--project PATH] [--no-plugin-browser] COMMAND [OPTIONS]\n"
		   "\n"
		   "Runs the UGCEditor module in a headless editor on a Windows world kept in DIR, where the\n"
		   "drive path C:/x is the file DIR/C/x. Every session starts a fresh world, discovers the\n"
		   "plugins, loads UGCEditor by name through its exported entry point and starts it, runs the\n"
		   "command through the editor's menus, tool bar, tab and dialog only, then shuts the module\n"
		   "down and destroys it. The editor's own options may stand before or after the command.\n"
		   "\n"
		   "  --root DIR           the folder that holds the Windows drives (required)\n"
		   "  --launch-dir PATH    the editor's launch folder, a Windows path (default C:/Work/); the\n"
		   "                       engine binaries folder, the editor's current directory, is\n"
		   "                       Engine/Binaries/Win64/ below it\n"
		   "  --project PATH       the game project file, a Windows path\n"
		   "                       (default C:/Work/Moravane/Moravane.uproject)\n"
		   "  --no-plugin-browser  the engine's PluginBrowser module is not loaded, as when a user has\n"
		   "                       disabled that plugin\n"
		   "  --help               this text\n"
		   "\n"
		   "Commands:\n"
		   "  menus\n"
		   "      Lists the main menu's entries at the hook \"FileProject\", then the tool bar's at\n"
		   "      \"Compile\"; then opens and lists the main menu's \"Cook Mod\" sub-menu, the tool bar's\n"
		   "      \"Cook Mod\" drop-down, and the sub-menu once more.\n"
		   "  distribute [--calverly5] [--plugin NAME [--original] [--dlcs TEXT]]...\n"
		   "      Clicks \"Distribute\" in the main menu at \"FileProject\" and operates the paking dialog\n"
		   "      as a person would: for each --plugin, in order, clicks \"Add Plugin\", chooses NAME in\n"
		   "      the new entry's combo box, ticks \"Original Plugin\" for --original and commits TEXT in\n"
		   "      the entry's DLC box for --dlcs; ticks \"Calverly5 Plugin\" for --calverly5; then\n"
		   "      clicks \"Distribute\".\n"
		   "  cook NAME [--dirty PACKAGE]... [--dirty-map PACKAGE]... [--save all|none]\n"
		   "      Starts the editor with the given unsaved packages (long package names such as\n"
		   "      /MyRoute/Maps/Main; --dirty a content package, --dirty-map a world package), clicks the\n"
		   "      tool bar's \"Cook Mod\" combo, lists its drop-down and clicks the entry labelled NAME. A\n"
		   "      save prompt is answered with --save: all saves every unsaved package, none (the default)\n"
		   "      declines. The automation task runs <launch>/Engine/Build/BatchFiles/RunUAT.bat through\n"
		   "      cmd.exe, and the session waits for it to end.\n"
		   "  create NAME [--template DISPLAY_NAME]...\n"
		   "      Clicks \"Create Mod\" in the main menu at \"FileProject\"; in the wizard of the \"Create New\n"
		   "      Mod\" tab selects the named templates (as the wizard lists them, e.g. ServiceMode) in\n"
		   "      the order given, types NAME as the plugin's name and clicks the create button. When no\n"
		   "      tab opens (the Plugin Browser is not loaded), the command ends after the message.\n"
		   "\n"
		   "Output, on standard output, each line as it happens:\n"
		   "  LogTemp: Warning: text     a log line as the Output Log shows it (any category; no\n"
		   "                             verbosity word at Log)\n"
		   "  Message: TEXT              a message box\n"
		   "  Window: TITLE WxH          a window added to the application\n"
		   "  Tab: NAME (ID) WxH         a nomad tab spawned into a new window\n"
		   "  Notification: TEXT         a notification\n"
		   "  Menu: PLACE | KIND | LABEL | TOOLTIP | ICON | BRUSH\n"
		   "                             an entry of a listed menu or tool bar; PLACE is FileProject,\n"
		   "                             Compile, Cook Mod sub-menu or Cook Mod drop-down; KIND is entry,\n"
		   "                             sub-menu, button or combo; ICON is STYLESET/STYLE or none; BRUSH\n"
		   "                             is the brush's resource name and size, no brush when the style\n"
		   "                             set has no such name, or none without an icon\n"
		   "  Menu: PLACE | heading | TEXT   a section heading of a listed menu\n"
		   "  Menu: PLACE | empty        a listed menu with no entries\n"
		   "  Save prompt: P1, P2, ...   a save prompt, with the unsaved packages it lists\n"
		   "  Task: NAME | SHORT NAME | PLATFORM | ICON BRUSH | COMMAND LINE\n"
		   "                             an automation task; the command line exactly as handed over,\n"
		   "                             trailing blanks included\n"
		   "\n"
		   "Exit status: 0 when the session ran, whatever the tools did; 2 for a usage error, or when\n"
		   "the command needs something the editor does not show (a plugin the dialog or the \"Cook Mod\"\n"
		   "drop-down does not offer, a template the wizard does not list, a name the wizard refuses):\n"
		   "then one message on standard error and nothing is done.\n";
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
		if (Argument == "--no-plugin-browser")
		{
			Result.bNoPluginBrowser = true;
			return true;
		}
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

	// The one name a command takes, given before or among its options.
	void TakeName(const std::string& Argument, FEditorCommandLine& Result)
	{
		if (Argument.rfind("-", 0) == 0)
		{
			throw FUsageError{"unknown option for " + Result.Command + ": " + Argument};
		}
		if (!Result.Name.empty())
		{
			throw FUsageError{Result.Command + " takes one name, not also " + Argument};
		}
		Result.Name = Argument;
	}

	void TakeCookOption(const std::vector<std::string>& Arguments, size_t& Index, FEditorCommandLine& Result)
	{
		const std::string& Argument = Arguments[Index];
		if (Argument == "--dirty" || Argument == "--dirty-map")
		{
			Result.DirtyPackages.push_back({TakeValue(Arguments, Index), Argument == "--dirty-map"});
		}
		else if (Argument == "--save")
		{
			const std::string Answer = TakeValue(Arguments, Index);
			if (Answer != "all" && Answer != "none")
			{
				throw FUsageError{"--save is all or none, not " + Answer};
			}
			Result.bSaveAll = Answer == "all";
		}
		else
		{
			TakeName(Argument, Result);
		}
	}

	void TakeCreateOption(const std::vector<std::string>& Arguments, size_t& Index, FEditorCommandLine& Result)
	{
		if (Arguments[Index] == "--template")
		{
			Result.Templates.push_back(TakeValue(Arguments, Index));
		}
		else
		{
			TakeName(Arguments[Index], Result);
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
		if (Result.Command == "distribute")
		{
			TakeDistributeOption(Arguments, Index, Result);
		}
		else if (Result.Command == "cook")
		{
			TakeCookOption(Arguments, Index, Result);
		}
		else if (Result.Command == "create")
		{
			TakeCreateOption(Arguments, Index, Result);
		}
		else if (Result.Command == "menus")
		{
			throw FUsageError{"menus takes no options: " + Argument};
		}
		else if (Argument.rfind("-", 0) == 0)
		{
			throw FUsageError{"unknown option: " + Argument};
		}
		else if (Argument != "distribute" && Argument != "cook" && Argument != "create" && Argument != "menus")
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
	if ((Result.Command == "cook" || Result.Command == "create") && Result.Name.empty())
	{
		throw FUsageError{Result.Command + " needs the plugin's NAME"};
	}
	return Result;
}
