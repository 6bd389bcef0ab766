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

	std::string Root;
	std::string LaunchDir = "C:/Work/";
	std::string ProjectFile = "C:/Work/Moravane/Moravane.uproject";
	std::string Command;
	bool bCalverly5 = false;
	std::vector<FPluginChoice> Plugins;
	bool bHelp = false;
};

// Throws FUsageError with a message for the user.
struct FUsageError
{
	std::string Message;
};

FEditorCommandLine ParseCommandLine(const std::vector<std::string>& Arguments);
const char* UsageText();
