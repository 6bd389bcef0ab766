// ugc-editor as a user runs it: its command line, what it prints and what it leaves on disk.
#include "HeadlessEditorTest.h"
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST_F(FHeadlessEditorTest, APluginTheDialogDoesNotOfferIsAnErrorAndNothingIsDistributed)
{
	const FRun Run = this->Run({"--root", Sandbox().string(), "distribute", "--plugin", "CalverlyBranchLine", "--plugin", "SignalBoxPack"});

	EXPECT_EQ(Run.ExitCode, 2);
	EXPECT_NE(Run.Err.find("SignalBoxPack"), std::string::npos) << Run.Err;
	EXPECT_EQ(Run.Out.find("Message: "), std::string::npos) << Run.Out;
	EXPECT_FALSE(fs::exists(Drive("Work/Moravane-WindowsNoEditor-CalverlyBranchLine.pak")));
	EXPECT_FALSE(fs::exists(Drive("pellow")));
}

TEST_F(FHeadlessEditorTest, WithNothingCookedThePluginIsAnErrorAfterTheDialogsMessage)
{
	fs::remove_all(Drive("Work/Moravane/Plugins"));
	fs::create_directories(Drive("Work/Moravane/Plugins"));

	const FRun Run = this->Run({"--root", Sandbox().string(), "distribute", "--plugin", "CalverlyBranchLine"});

	EXPECT_EQ(Run.ExitCode, 2);
	EXPECT_NE(Run.Out.find("Message: No cooked plugins available.\n"), std::string::npos) << Run.Out;
	EXPECT_NE(Run.Err.find("CalverlyBranchLine"), std::string::npos) << Run.Err;
}

TEST_F(FHeadlessEditorTest, WithoutPluginsDistributeShowsTheDialogsMessageWhereverTheEditorOptionsStand)
{
	const FRun Run = this->Run({"--launch-dir", "C:\\Work", "distribute", "--root", Sandbox().string(), "--project", "C:/Work/Moravane/Moravane.uproject"});
	EXPECT_EQ(Run.ExitCode, 0) << Run.Err;
	EXPECT_EQ(SplitLines(Run.Out).back(), "Message: No plugins have been added. Please add a plugin before distributing.");
	EXPECT_FALSE(fs::exists(Drive("Work/Moravane-WindowsNoEditor-.pak")));
}

TEST_F(FHeadlessEditorTest, UsageErrorsExitWithTwoAndSaySoOnTheErrorStreamOnly)
{
	const std::vector<std::vector<std::string>> Wrong = {
		{"distribute"},
		{"--root", Sandbox().string()},
		{"--root", Sandbox().string(), "cook"},
		{"--root", Sandbox().string(), "cook", "A", "--save", "some"},
		{"--root", Sandbox().string(), "create", "A", "B"},
		{"--root", Sandbox().string(), "menus", "--shiny"},
		{"--root", Sandbox().string(), "build"},
		{"--root", Sandbox().string(), "distribute", "--original"},
		{"--root", Sandbox().string(), "distribute", "--plugin"},
		{"--root", Sandbox().string(), "distribute", "--shiny"},
		{"--root", (Root / "missing").string(), "distribute"},
		{"--root", Sandbox().string(), "--launch-dir", "Work", "distribute"},
	};
	for (const std::vector<std::string>& Arguments : Wrong)
	{
		const FRun Run = this->Run(Arguments);
		EXPECT_EQ(Run.ExitCode, 2) << Arguments.back();
		EXPECT_EQ(Run.Err.rfind("ugc-editor: ", 0), 0u) << Run.Err;
		EXPECT_EQ(Run.Out, "") << Arguments.back();
	}
}

TEST_F(FHeadlessEditorTest, CookOfAPluginTheDropDownDoesNotOfferIsAnErrorAndNoTaskStarts)
{
	const FRun Run = this->Run({"--root", Sandbox().string(), "cook", "RailTools"});

	EXPECT_EQ(Run.ExitCode, 2);
	EXPECT_NE(Run.Err.find("RailTools"), std::string::npos) << Run.Err;
	EXPECT_NE(Run.Err.find("HeritageLivery"), std::string::npos) << Run.Err;
	EXPECT_EQ(Run.Out.find("Task: "), std::string::npos);
}

TEST_F(FHeadlessEditorTest, CreateFindsTheWorldWhateverCaseTheLaunchFolderAndProjectAreNamedIn)
{
	CopyProjectData();

	const FRun Run = this->Run({"--root", Sandbox().string(), "--launch-dir", "C:/work/", "--project", "C:/WORK/moravane/MORAVANE.uproject", "create", "Northline"});

	EXPECT_EQ(Run.ExitCode, 0) << Run.Err;
	EXPECT_NE(Run.Out.find("Notification: 'Northline' was created successfully."), std::string::npos) << Run.Out;
	EXPECT_TRUE(fs::exists(Drive("Work/Moravane/Plugins/Northline/Northline.uplugin")));
	EXPECT_FALSE(fs::exists(Drive("WORK")));
}

TEST_F(FHeadlessEditorTest, AProjectAboveTheDriveRootIsOnTheDriveRootAndNothingIsWrittenOutsideTheRoot)
{
	fs::create_directories(Drive("elsewhere/P"));
	std::ofstream(Drive("elsewhere/P/P.uproject")) << "{ \"FileVersion\": 3 }";
	fs::copy(REPOSITORY_DIR "/Templates", Drive("elsewhere/P/Templates"), fs::copy_options::recursive);

	const FRun Run = this->Run({"--root", Sandbox().string(), "--project", "C:/../../elsewhere/P/P.uproject", "create", "Northline"});

	EXPECT_EQ(Run.ExitCode, 0) << Run.Err;
	EXPECT_TRUE(fs::is_directory(Drive("elsewhere/P/Plugins/Northline")));
	EXPECT_FALSE(fs::exists(Root / "elsewhere"));
}

TEST_F(FHeadlessEditorTest, CreateWithANameTheWizardRefusesExitsWithTwoAndLeavesNothingOnDisk)
{
	CopyProjectData();

	const FRun Run = this->Run({"--root", Sandbox().string(), "create", "9Northline"});

	EXPECT_EQ(Run.ExitCode, 2);
	EXPECT_NE(Run.Err.find("Plugin names must begin with an alphabetic character."), std::string::npos) << Run.Err;
	EXPECT_FALSE(fs::exists(Drive("Work/Moravane/Plugins/9Northline")));
	EXPECT_EQ(Run.Out.find("Notification: "), std::string::npos);
}

TEST_F(FHeadlessEditorTest, CreateWithATemplateTheWizardDoesNotListExitsWithTwoAndQuotesIt)
{
	CopyProjectData();

	const FRun Run = this->Run({"--root", Sandbox().string(), "create", "Northline", "--template", " Route"});

	EXPECT_EQ(Run.ExitCode, 2);
	EXPECT_NE(Run.Err.find("no template named \" Route\""), std::string::npos) << Run.Err;
	EXPECT_NE(Run.Err.find("ServiceMode"), std::string::npos) << Run.Err;
	EXPECT_FALSE(fs::exists(Drive("Work/Moravane/Plugins/Northline")));
}

TEST_F(FHeadlessEditorTest, WithoutThePluginBrowserCreateEndsAfterTheMessage)
{
	const FRun Run = this->Run({"--root", Sandbox().string(), "create", "Northline", "--no-plugin-browser"});

	EXPECT_EQ(Run.ExitCode, 0) << Run.Err;
	EXPECT_EQ(SplitLines(Run.Out).back(), "Message: Creating a game mod requires the use of the Plugin Browser, but it is currently disabled.");
	EXPECT_EQ(Run.Out.find("Tab: "), std::string::npos);
	EXPECT_FALSE(fs::exists(Drive("Work/Moravane/Plugins/Northline")));
}

TEST_F(FHeadlessEditorTest, AutomationRunsTheSpecsWhosePathContainsTheFilterInAnyCaseAndTheyLeaveNoFiles)
{
	CopyProjectData();
	const FRun Result = Run({"--root", Sandbox().string(), "automation", "--filter", "ugceditor.PLATFORMFILE.a read"});

	EXPECT_EQ(Result.ExitCode, 0);
	EXPECT_EQ(Result.Err, "");
	const std::string Path = "UGCEditor.PlatformFile.a read.should read the disk's copy of a file that is in both";
	EXPECT_NE(Result.Out.find("LogAutomationController: Display: Test Started. Name={should read the disk's copy of a file that is in both}\n"
							  "LogAutomationController: Display: Test Completed. Result={Passed} Name={should read the disk's copy of a file that is in both} Path={" +
							  Path + "}\n"
									 "LogAutomationController: BeginEvents: " +
							  Path + "\nLogAutomationController: EndEvents: " + Path + "\n"),
			  std::string::npos)
		<< Result.Out;
	size_t Completed = 0;
	for (size_t At = Result.Out.find("Test Completed."); At != std::string::npos; At = Result.Out.find("Test Completed.", At + 1))
	{
		++Completed;
	}
	EXPECT_EQ(Completed, 2u);
	EXPECT_FALSE(fs::exists(Drive("Work/Moravane/Intermediate/UGCEditorSpecs")));
}

TEST_F(FHeadlessEditorTest, AutomationWithAFilterNoTestMatchesExitsWithTwoAndSaysSo)
{
	const FRun Result = Run({"--root", Sandbox().string(), "automation", "--filter", "NoSuchSpec"});

	EXPECT_EQ(Result.ExitCode, 2);
	EXPECT_EQ(Result.Err, "ugc-editor: no automation test's path contains \"NoSuchSpec\"; nothing was run.\n");
	EXPECT_EQ(Result.Out.find("LogAutomationController"), std::string::npos);
}
