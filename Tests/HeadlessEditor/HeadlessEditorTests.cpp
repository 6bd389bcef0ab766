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
	const std::vector<std::string> Expected = {
		"LogTemp: Scanning for plugins in: C:/Work/Moravane/Plugins/",
		"LogTemp: Found plugin folder: CalverlyBranchLine",
		"LogTemp: Found plugin folder: ExpressTimetable",
		"LogTemp: Found plugin folder: SignalBoxPack",
		"LogTemp: Found plugin folder: ThirdPartyLocos",
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
}

TEST_F(FHeadlessEditorTest, UsageErrorsExitWithTwoAndSaySoOnTheErrorStreamOnly)
{
	const std::vector<std::vector<std::string>> Wrong = {
		{"distribute"},
		{"--root", Sandbox().string()},
		{"--root", Sandbox().string(), "cook"},
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
