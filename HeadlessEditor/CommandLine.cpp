#include "CommandLine.h"
#include "StandIn/ShownText.h"
#include <algorithm>
#include <cstdio>

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
		   "  automation [--filter TEXT]\n"
		   "      Runs every registered automation test whose full path contains TEXT (blanks left out,\n"
		   "      letter case ignored; default UGCEditor), as \"Automation RunTests TEXT\" does in an\n"
		   "      editor. Each test logs, as the editor's automation controller does:\n"
		   "        LogAutomationController: Display: Test Started. Name={NAME}\n"
		   "        LogAutomationController: Display: Test Completed. Result={Passed} Name={NAME} Path={PATH}\n"
		   "      or, for a failed test, Error: Test Completed. Result={Failed} ...; then its events\n"
		   "      between BeginEvents: PATH and EndEvents: PATH, each error as\n"
		   "      LogAutomationController: Error: TEXT. NAME is the last part of the dotted PATH.\n"
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
		   "Lines are written out as they happen: before the editor waits for a child process, a prompt\n"
		   "or a task, and otherwise within a tenth of a second.\n"
		   "No value can start a line of its own or pass for a field separator: inside a line, a control\n"
		   "character is shown as its Unicode control picture (a line feed as \u240A, a carriage return as\n"
		   "\u240D, a tab as \u2409), U+0080 to U+009F, U+2028 and U+2029 as <U+XXXX>, and a | inside a\n"
		   "field of a Menu: or Task: line as \u00A6.\n"
		   "\n"
		   "Exit status: 0 when the session ran, whatever the tools did (automation: when at least one\n"
		   "test ran and all passed; 1 when one failed; 2 when none matched, with a message on standard\n"
		   "error); 2, with one message on standard error and nothing done, for a usage error or what the\n"
		   "editor could not have been asked:\n"
		   "two names, a template named twice, an argument that is not valid UTF-8 or holds a control\n"
		   "character, a launch folder or project path holding \" < > | ? or *, a project file that is\n"
		   "missing or not JSON, and for create a Templates/ folder or Templates/BaseTemplate that is\n"
		   "missing or a template folder that cannot be read; and 2 when the command needs something the\n"
		   "editor does not show (a plugin the dialog or the \"Cook Mod\" drop-down does not offer, a\n"
		   "template the wizard does not list, a name the wizard refuses). Doubled slashes in the launch\n"
		   "folder are collapsed, as the engine collapses them.\n";
}

namespace
{
	// The length of the well-formed UTF-8 sequence at Index (no overlong form, no surrogate, nothing
	// beyond U+10FFFF), or 0.
	size_t Utf8SequenceLength(const std::string& Text, size_t Index)
	{
		const unsigned char Lead = (unsigned char)Text[Index];
		if (Lead < 0x80)
		{
			return 1;
		}
		const size_t Length = Lead >= 0xC2 && Lead <= 0xDF ? 2 : Lead >= 0xE0 && Lead <= 0xEF ? 3
															 : Lead >= 0xF0 && Lead <= 0xF4	  ? 4
																							  : 0;
		if (Length == 0 || Index + Length > Text.size())
		{
			return 0;
		}
		const unsigned char Second = (unsigned char)Text[Index + 1];
		const unsigned char Low = Lead == 0xE0 ? 0xA0 : Lead == 0xF0 ? 0x90
																	 : 0x80;
		const unsigned char High = Lead == 0xED ? 0x9F : Lead == 0xF4 ? 0x8F
																	  : 0xBF;
		if (Second < Low || Second > High)
		{
			return 0;
		}
		for (size_t Next = Index + 2; Next < Index + Length; ++Next)
		{
			if (((unsigned char)Text[Next] & 0xC0) != 0x80)
			{
				return 0;
			}
		}
		return Length;
	}

	bool IsValidUtf8(const std::string& Text)
	{
		for (size_t Index = 0; Index < Text.size();)
		{
			const size_t Length = Utf8SequenceLength(Text, Index);
			if (Length == 0)
			{
				return false;
			}
			Index += Length;
		}
		return true;
	}

	// A control character: U+0000 to U+001F, U+007F, or U+0080 to U+009F (in UTF-8, 0xC2 then 0x80 to 0x9F).
	bool HasControlCharacter(const std::string& Text)
	{
		for (size_t Index = 0; Index < Text.size(); ++Index)
		{
			const unsigned char Byte = (unsigned char)Text[Index];
			if (Byte < 0x20 || Byte == 0x7F || (Byte == 0xC2 && Index + 1 < Text.size() && (unsigned char)Text[Index + 1] <= 0x9F))
			{
				return true;
			}
		}
		return false;
	}

	// Nothing the editor could have been given: a command line is text, and no name, package or path a
	// person types into the editor holds a control character.
	void RefuseUnreadableArguments(const std::vector<std::string>& Arguments)
	{
		for (const std::string& Argument : Arguments)
		{
			if (!IsValidUtf8(Argument))
			{
				throw FUsageError{"the argument " + Quoted(Argument) + " is not valid UTF-8"};
			}
			if (HasControlCharacter(Argument))
			{
				throw FUsageError{"the argument " + Quoted(Argument) + " holds a control character"};
			}
		}
	}

	// The characters Windows forbids in a path, besides the control characters refused for every argument.
	void RefuseForbiddenPathCharacters(const std::string& Option, const std::string& Path)
	{
		const size_t Forbidden = Path.find_first_of("\"<>|?*");
		if (Forbidden != std::string::npos)
		{
			throw FUsageError{Option + " " + Quoted(Path) + " holds '" + Path[Forbidden] + "', which Windows does not allow in a path"};
		}
	}

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
		if (Result.Name)
		{
			throw FUsageError{Result.Command + " takes one name, not both " + Quoted(*Result.Name) + " and " + Quoted(Argument)};
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
			const std::string Template = TakeValue(Arguments, Index);
			// A second click on a template in the wizard's list takes the selection back.
			if (std::find(Result.Templates.begin(), Result.Templates.end(), Template) != Result.Templates.end())
			{
				throw FUsageError{"the template " + Quoted(Template) + " is named twice"};
			}
			Result.Templates.push_back(Template);
		}
		else
		{
			TakeName(Arguments[Index], Result);
		}
	}
}

std::string Quoted(const std::string& Value)
{
	std::string Readable;
	for (size_t Index = 0; Index < Value.size();)
	{
		const size_t Length = Utf8SequenceLength(Value, Index);
		if (Length == 0)
		{
			char Byte[8];
			std::snprintf(Byte, sizeof(Byte), "\\x%02X", (unsigned)(unsigned char)Value[Index]);
			Readable += Byte;
			++Index;
			continue;
		}
		Readable.append(Value, Index, Length);
		Index += Length;
	}
	return "\"" + StandIn::ShownValue(Readable) + "\"";
}

FEditorCommandLine ParseCommandLine(const std::vector<std::string>& Arguments)
{
	RefuseUnreadableArguments(Arguments);
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
		else if (Result.Command == "automation" && Argument == "--filter")
		{
			Result.Filter = TakeValue(Arguments, Index);
		}
		else if (Result.Command == "menus" || Result.Command == "automation")
		{
			throw FUsageError{"unknown option for " + Result.Command + ": " + Argument};
		}
		else if (Argument.rfind("-", 0) == 0)
		{
			throw FUsageError{"unknown option: " + Argument};
		}
		else if (Argument != "distribute" && Argument != "cook" && Argument != "create" && Argument != "menus" && Argument != "automation")
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
	if ((Result.Command == "cook" || Result.Command == "create") && !Result.Name)
	{
		throw FUsageError{Result.Command + " needs the plugin's NAME"};
	}
	RefuseForbiddenPathCharacters("--launch-dir", Result.LaunchDir);
	RefuseForbiddenPathCharacters("--project", Result.ProjectFile);
	return Result;
}
