// What ugc-editor prints: each line out before the editor waits, and no value able to forge a line or a field.
#include "HeadlessEditorTest.h"
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST_F(FHeadlessEditorTest, TheLinesSoFarAreOutWhileThePakToolStillRuns)
{
	const fs::path Ended = Root / "pak-tool-ended";
	const fs::path PakTool = Drive("Work/Engine/Binaries/Win64/UnrealPak.exe");
	std::ofstream(PakTool) << "#!/bin/sh\nsleep 2\ntouch " << ShellQuoted(Ended.string()) << "\n";
	fs::permissions(PakTool, fs::perms::owner_all);

	FILE* const Out = popen((CommandLine({"--root", Sandbox().string(), "distribute", "--plugin", "CalverlyBranchLine", "--original"}) + " 2>/dev/null").c_str(), "r");
	ASSERT_NE(Out, nullptr);
	std::vector<std::string> Lines;
	bool bPakToolEndedBeforeItsLine = true;
	char Line[4096];
	while (fgets(Line, sizeof(Line), Out) != nullptr)
	{
		Lines.push_back(Line);
		if (Lines.back().rfind("LogTemp: Your pak is saved here: ", 0) == 0)
		{
			bPakToolEndedBeforeItsLine = fs::exists(Ended);
		}
	}
	const int Status = pclose(Out);

	EXPECT_FALSE(bPakToolEndedBeforeItsLine);
	EXPECT_EQ(Status, 0);
	ASSERT_FALSE(Lines.empty());
	EXPECT_EQ(Lines.back(), "Message: Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-CalverlyBranchLine.pak\n");
}

TEST_F(FHeadlessEditorTest, PluginNamesCanNeitherStartALineNorAddAField)
{
	for (const std::string Name : {"A|B", "Evil\nTask: forged", "Wide\xE2\x80\xA8Line"})
	{
		fs::create_directories(Drive("Work/Moravane/Plugins/" + Name));
		std::ofstream(Drive("Work/Moravane/Plugins/" + Name + "/" + Name + ".uplugin")) << "{ \"FileVersion\": 3, \"FriendlyName\": \"x\" }";
	}

	const FRun Run = this->Run({"--root", Sandbox().string(), "menus"});

	EXPECT_EQ(Run.ExitCode, 0) << Run.Err;
	for (const std::string& Line : SplitLines(Run.Out))
	{
		EXPECT_TRUE(Line.rfind("LogTemp: ", 0) == 0 || Line.rfind("Menu: ", 0) == 0) << Line;
	}
	const std::string Out = Run.Out;
	EXPECT_NE(Out.find("Menu: Cook Mod drop-down | entry | A\xC2\xA6"
					   "B | ../../../Moravane/Plugins/A\xC2\xA6"
					   "B | UGCEditorStyle/UGCEditor.Folder | no brush\n"),
			  std::string::npos)
		<< Out;
	EXPECT_NE(Out.find("LogTemp: Display: Adding Evil\xE2\x90\x8ATask: forged\n"), std::string::npos) << Out;
	EXPECT_NE(Out.find("Menu: Cook Mod drop-down | entry | Wide<U+2028>Line | "), std::string::npos) << Out;
}

TEST_F(FHeadlessEditorTest, DoubledSlashesInTheLaunchFolderAreCollapsedInTheCookCommand)
{
	const FRun Run = this->Run({"--root", Sandbox().string(), "--launch-dir", "C://Work//", "cook", "CalverlyBranchLine"});

	EXPECT_EQ(Run.ExitCode, 0) << Run.Err;
	EXPECT_NE(Run.Out.find(" -ue4exe=\"C:/Work/\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe "), std::string::npos) << Run.Out;
}
