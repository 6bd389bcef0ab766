// ugc-editor as a user runs it: its command line, what it prints and what it leaves on disk.
#include "SandboxTest.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace fs = std::filesystem;

namespace
{
	struct FRun
	{
		int ExitCode = -1;
		std::string Out;
		std::string Err;
	};

	std::string Quote(const std::string& Argument)
	{
		std::string Quoted = "'";
		for (const char Char : Argument)
		{
			Quoted += Char == '\'' ? std::string("'\\''") : std::string(1, Char);
		}
		return Quoted + "'";
	}

	std::string ReadAll(const fs::path& Path)
	{
		std::ifstream Stream(Path, std::ios::binary);
		std::ostringstream Bytes;
		Bytes << Stream.rdbuf();
		return Bytes.str();
	}
}

class FHeadlessEditorTest : public ::testing::Test
{
protected:
	void SetUp() override
	{
		std::string Template = (fs::temp_directory_path() / "ugc-editor-XXXXXX").string();
		ASSERT_NE(mkdtemp(&Template[0]), nullptr);
		Root = Template;
		fs::copy(SAMPLE_SANDBOX_DIR, Root / "sandbox", fs::copy_options::recursive);
	}
	void TearDown() override { fs::remove_all(Root); }

	// The project data the module reads: the command icons and the mod templates.
	void CopyProjectData() const
	{
		fs::copy(REPOSITORY_DIR "/Resources", Drive("Work/Moravane/Resources"), fs::copy_options::recursive);
		fs::copy(REPOSITORY_DIR "/Templates", Drive("Work/Moravane/Templates"), fs::copy_options::recursive);
	}

	FRun Run(const std::vector<std::string>& Arguments) const
	{
		std::string Command = Quote(UGC_EDITOR_PATH);
		for (const std::string& Argument : Arguments)
		{
			Command += " " + Quote(Argument);
		}
		const fs::path Out = Root / "stdout.txt";
		const fs::path Err = Root / "stderr.txt";
		const int Status = HostShell((Command + " > " + Quote(Out.string()) + " 2> " + Quote(Err.string())).c_str());
		return FRun{WIFEXITED(Status) ? WEXITSTATUS(Status) : -1, ReadAll(Out), ReadAll(Err)};
	}

	fs::path Sandbox() const { return Root / "sandbox"; }
	fs::path Drive(const std::string& Below) const { return Sandbox() / "C" / Below; }

	fs::path Root;
};

TEST_F(FHeadlessEditorTest, DistributesTheSampleThroughTheDialogAndPrintsTheSession)
{
	const FRun Run = this->Run({"--root", Sandbox().string(), "distribute", "--calverly5",
								"--plugin", "CalverlyBranchLine", "--original", "--dlcs", "Moravane_Base, Calverly5_Signals",
								"--plugin", "ThirdPartyLocos",
								"--plugin", "ExpressTimetable", "--original"});

	EXPECT_EQ(Run.ExitCode, 0) << Run.Err;
	EXPECT_EQ(Run.Err, "");
	const std::vector<std::string> Out = SplitLines(Run.Out);
	// The module's start-up warnings, then the dialog's discovery as "Distribute" in the main menu opens it.
	const std::vector<std::string> Expected = {
		"LogTemp: Warning: Unofficial Editor Extensions: Scanning Assets",
		"LogTemp: Warning: Unofficial Editor Extensions: Finished Scanning Assets",
		"LogTemp: Scanning for plugins in: C:/Work/Moravane/Plugins/",
		"LogTemp: Found plugin folder: CalverlyBranchLine",
		"LogTemp: Found plugin folder: ExpressTimetable",
		"LogTemp: Found plugin folder: SignalBoxPack",
		"LogTemp: Found plugin folder: ThirdPartyLocos",
		"Window: Paking Dialog 400x400",
		"LogTemp: Plugin at index 0 marked as original",
		"LogTemp: Moravane_Base",
		"LogTemp: Calverly5_Signals",
		"LogTemp: Plugin at index 2 marked as original",
		"LogTemp: Calverly5 checkbox is checked",
		"LogTemp: UGC file CalverlyBranchLine.ugc is generated",
		"LogTemp: File CalverlyBranchLine.uplugin is generated",
		"LogTemp: File CalverlyBranchLine.upluginmanifest is generated",
		"LogTemp: File AssetRegistry for not your original plugin is generated",
		"LogTemp: UGC file ExpressTimetable.ugc is generated",
		"LogTemp: File ExpressTimetable.uplugin is generated",
		"LogTemp: File ExpressTimetable.upluginmanifest is generated",
	};
	ASSERT_GT(Out.size(), Expected.size());
	EXPECT_EQ(std::vector<std::string>(Out.begin(), Out.begin() + Expected.size()), Expected);
	EXPECT_EQ(std::vector<std::string>(Out.end() - 3, Out.end()), (std::vector<std::string>{
																	  "LogTemp: Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-CalverlyBranchLine.pak",
																	  "LogTemp: Pak file created successfully: C:/Work/Moravane-WindowsNoEditor-CalverlyBranchLine.pak",
																	  "Message: Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-CalverlyBranchLine.pak",
																  }));

	const std::string Pak = ReadAll(Drive("Work/Moravane-WindowsNoEditor-CalverlyBranchLine.pak"));
	EXPECT_NE(Pak.find("C:/pellow/Moravane/Plugins/DLC/ThirdPartyLocos/Content/Locos/Class47.uasset -> ..\\..\\..\\Moravane/Plugins/DLC/ThirdPartyLocos/Content/Locos/Class47.uasset"), std::string::npos) << Pak;
	const std::string Cooked = "Work/Moravane/Plugins/CalverlyBranchLine/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/CalverlyBranchLine/";
	EXPECT_NE(ReadAll(Drive(Cooked + "Content/CalverlyBranchLine.ugc")).find("\"DLCDependencies\": [\"Moravane_Base\", \"Calverly5_Signals\"],"), std::string::npos);
	EXPECT_EQ(ReadAll(Drive(Cooked + "Content/AssetRegistry.bin")), "asset registry of CalverlyBranchLine\nasset registry of ExpressTimetable\n");
	EXPECT_FALSE(fs::exists(Drive("pellow")));
}

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

TEST_F(FHeadlessEditorTest, HelpDescribesTheCommandLine)
{
	const FRun Help = Run({"--help"});

	EXPECT_EQ(Help.ExitCode, 0);
	EXPECT_NE(Help.Out.find("ugc-editor --root DIR [--launch-dir PATH] [--project PATH]"), std::string::npos) << Help.Out;
	EXPECT_NE(Help.Out.find("distribute [--calverly5] [--plugin NAME [--original] [--dlcs TEXT]]..."), std::string::npos) << Help.Out;
	EXPECT_NE(Help.Out.find("--no-plugin-browser"), std::string::npos) << Help.Out;
	EXPECT_NE(Help.Out.find("cook NAME [--dirty PACKAGE]... [--dirty-map PACKAGE]... [--save all|none]"), std::string::npos) << Help.Out;
	EXPECT_NE(Help.Out.find("create NAME [--template DISPLAY_NAME]..."), std::string::npos) << Help.Out;
	EXPECT_NE(Help.Out.find("Menu: PLACE | KIND | LABEL | TOOLTIP | ICON | BRUSH"), std::string::npos) << Help.Out;
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

TEST_F(FHeadlessEditorTest, MenusListsTheEntriesThenTheSubMenuEmptyTheDropDownAndTheSubMenuFilled)
{
	const FRun Run = this->Run({"menus", "--root", Sandbox().string()});

	EXPECT_EQ(Run.ExitCode, 0) << Run.Err;
	std::vector<std::string> MenuLines;
	for (const std::string& Line : SplitLines(Run.Out))
	{
		if (Line.rfind("Menu: ", 0) == 0)
		{
			MenuLines.push_back(Line);
		}
	}
	ASSERT_EQ(MenuLines.size(), 6u + 1u + 6u + 5u);
	EXPECT_EQ(std::vector<std::string>(MenuLines.begin(), MenuLines.begin() + 7), (std::vector<std::string>{
																					  "Menu: FileProject | entry | Create Mod | Create a new DLC package as a content plugin | UGCEditorStyle/UGCEditor.CreateUGCAction | ../../../Moravane/Resources/CreateUGC_64x.png 40x40",
																					  "Menu: FileProject | sub-menu | Cook Mod | Share and distribute DLC | UGCEditorStyle/UGCEditor.PackageUGCAction | ../../../Moravane/Resources/PackageUGC_64x.png 40x40",
																					  "Menu: FileProject | entry | Distribute | Generating important files and paking your DLC | UGCEditorStyle/UGCEditor.PakingUGCAction | ../../../Moravane/Resources/DistributeUGC_64x.png 40x40",
																					  "Menu: Compile | button | Create Mod | Create a new DLC package as a content plugin | UGCEditorStyle/UGCEditor.CreateUGCAction | ../../../Moravane/Resources/CreateUGC_64x.png 40x40",
																					  "Menu: Compile | combo | Cook Mod | Share and distribute DLC | UGCEditorStyle/UGCEditor.PackageUGCAction | ../../../Moravane/Resources/PackageUGC_64x.png 40x40",
																					  "Menu: Compile | button | Distribute | Generating important files and paking your DLC | UGCEditorStyle/UGCEditor.PakingUGCAction | ../../../Moravane/Resources/DistributeUGC_64x.png 40x40",
																					  "Menu: Cook Mod sub-menu | empty",
																				  }));
	EXPECT_EQ(MenuLines[7], "Menu: Cook Mod drop-down | heading | Share...");
	EXPECT_EQ(MenuLines[8], "Menu: Cook Mod drop-down | entry | CalverlyBranchLine | ../../../Moravane/Plugins/CalverlyBranchLine | UGCEditorStyle/UGCEditor.Folder | no brush");
	EXPECT_EQ(MenuLines[12], "Menu: Cook Mod drop-down | entry | HeritageLivery | ../../../Moravane/Mods/HeritageLivery | UGCEditorStyle/UGCEditor.Folder | no brush");
	EXPECT_EQ(MenuLines[13], "Menu: Cook Mod sub-menu | entry | CalverlyBranchLine | ../../../Moravane/Plugins/CalverlyBranchLine | UGCEditorStyle/UGCEditor.Folder | no brush");
}

TEST_F(FHeadlessEditorTest, CookDeclinedLeavesThePromptsMessageThenSavedItRunsTheTaskToItsEnd)
{
	const FRun Declined = Run({"--root", Sandbox().string(), "cook", "CalverlyBranchLine", "--dirty", "/CalverlyBranchLine/Maps/Main", "--dirty-map", "/Game/Maps/Hub"});
	const FRun Saved = Run({"--root", Sandbox().string(), "cook", "CalverlyBranchLine", "--dirty", "/CalverlyBranchLine/Maps/Main", "--save", "all"});

	EXPECT_EQ(Declined.ExitCode, 0) << Declined.Err;
	const std::vector<std::string> DeclinedOut = SplitLines(Declined.Out);
	EXPECT_EQ(std::vector<std::string>(DeclinedOut.end() - 2, DeclinedOut.end()), (std::vector<std::string>{
																					  "Save prompt: /Game/Maps/Hub, /CalverlyBranchLine/Maps/Main",
																					  "Message: You must save all assets in CalverlyBranchLine before you can share it.",
																				  }));
	EXPECT_EQ(Declined.Out.find("Task: "), std::string::npos);
	EXPECT_EQ(Saved.ExitCode, 0) << Saved.Err;
	const std::vector<std::string> SavedOut = SplitLines(Saved.Out);
	const std::string Tool = "UATHelper: Cooking CalverlyBranchLine (Windows): ";
	// The session waits for the sample's automation tool to end.
	EXPECT_EQ(std::vector<std::string>(SavedOut.end() - 13, SavedOut.end()), (std::vector<std::string>{
																				 "Save prompt: /CalverlyBranchLine/Maps/Main",
																				 "Task: Cooking CalverlyBranchLine | Cooking CalverlyBranchLine | Windows | ../../../Moravane/Resources/PackageUGC_64x.png | BuildDLC -Project=\"C:/Work/Moravane/Moravane.uproject\" -PluginPath=\"C:/Work/Moravane/Plugins/CalverlyBranchLine/CalverlyBranchLine.uplugin\" -ue4exe=\"C:/Work/\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe -nocompile -TargetPlatform=WindowsNoEditor -dlcName=\"CalverlyBranchLine\",\"CalverlyBranchLine\" ",
																				 "Notification: Cooking CalverlyBranchLine for Windows...",
																				 Tool + "BuildDLC",
																				 Tool + "-Project=C:/Work/Moravane/Moravane.uproject",
																				 Tool + "-PluginPath=C:/Work/Moravane/Plugins/CalverlyBranchLine/CalverlyBranchLine.uplugin",
																				 Tool + "-ue4exe=C:/Work/Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe",
																				 Tool + "-nocompile",
																				 Tool + "-TargetPlatform=WindowsNoEditor",
																				 Tool + "-dlcName=CalverlyBranchLine,CalverlyBranchLine",
																				 Tool + "Cooked /CalverlyBranchLine/Main",
																				 Tool + "BUILD SUCCESSFUL",
																				 "Notification: Cooking CalverlyBranchLine complete!",
																			 }));
	EXPECT_EQ(ReadAll(Drive("Work/Moravane/Plugins/CalverlyBranchLine/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/CalverlyBranchLine/Content/Metadata/DevelopmentAssetRegistry.bin")), "development asset registry of CalverlyBranchLine\n/CalverlyBranchLine/Main\n");
}

TEST_F(FHeadlessEditorTest, CookOfAPluginTheDropDownDoesNotOfferIsAnErrorAndNoTaskStarts)
{
	const FRun Run = this->Run({"--root", Sandbox().string(), "cook", "RailTools"});

	EXPECT_EQ(Run.ExitCode, 2);
	EXPECT_NE(Run.Err.find("RailTools"), std::string::npos) << Run.Err;
	EXPECT_NE(Run.Err.find("HeritageLivery"), std::string::npos) << Run.Err;
	EXPECT_EQ(Run.Out.find("Task: "), std::string::npos);
}

TEST_F(FHeadlessEditorTest, CreateMakesTheModFromTwoTemplatesThroughTheTabsWizard)
{
	CopyProjectData();

	const FRun Run = this->Run({"--root", Sandbox().string(), "create", "Northline", "--template", "Route", "--template", "ServiceMode"});

	EXPECT_EQ(Run.ExitCode, 0) << Run.Err;
	const std::vector<std::string> Out = SplitLines(Run.Out);
	EXPECT_EQ(std::vector<std::string>(Out.end() - 2, Out.end()), (std::vector<std::string>{"Tab: Create New Mod (UGCPluginCreator) 800x600", "Notification: 'Northline' was created successfully."}));
	EXPECT_TRUE(fs::exists(Drive("Work/Moravane/Plugins/Northline/Northline.uplugin")));
	EXPECT_NE(ReadAll(Drive("Work/Moravane/Plugins/Northline/Northline.uplugin")).find("\"Category\": \"DLC\""), std::string::npos);
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
	CopyProjectData();

	Run({"--root", Sandbox().string(), "--project", "C:/../../elsewhere/P/P.uproject", "create", "Northline"});

	EXPECT_TRUE(fs::is_directory(Drive("elsewhere/P/Plugins")));
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

TEST_F(FHeadlessEditorTest, CreateWithATemplateTheWizardDoesNotListExitsWithTwo)
{
	CopyProjectData();

	const FRun Run = this->Run({"--root", Sandbox().string(), "create", "Northline", "--template", "Freight"});

	EXPECT_EQ(Run.ExitCode, 2);
	EXPECT_NE(Run.Err.find("Freight"), std::string::npos) << Run.Err;
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
