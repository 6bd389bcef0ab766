#pragma once

#include <optional>
#include <string>
#include <vector>

// What "ugc-editor" was asked to do.
struct FEditorCommandLine
{
	struct FPluginChoice
	{
		std::string Name;
		bool bOriginal = false;
		std::optional<std::string> RequiredDLCs;
	};

	struct FDirtyPackage
	{
		std::string LongPackageName;
		bool bIsMap = false;
	};

	std::string Root;
	std::string LaunchDir = "C:/Work/";
	std::string ProjectFile = "C:/Work/Moravane/Moravane.uproject";
	bool bNoPluginBrowser = false;
	std::string Command;
	bool bHelp = false;

	// distribute
	bool bCalverly5 = false;
	std::vector<FPluginChoice> Plugins;

	// cook and create: the plugin's name
	std::optional<std::string> Name;
	// cook
	std::vector<FDirtyPackage> DirtyPackages;
	bool bSaveAll = false;
	// create, in the order given
	std::vector<std::string> Templates;
	// automation: what the tests' full paths must contain
	std::string Filter = "UGCEditor";
};

// Throws FUsageError with a message for the user.
struct FUsageError
{
	std::string Message;
};

// A value as a usage message names it: in double quotes, so that a blank or an empty value shows, and
// with what could break the message's line made visible.
std::string Quoted(const std::string& Value);

FEditorCommandLine ParseCommandLine(const std::vector<std::string>& Arguments);
const char* UsageText();
