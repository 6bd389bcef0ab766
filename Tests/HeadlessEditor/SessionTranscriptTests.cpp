// Whole sessions of ugc-editor on the sample: every line it prints, in order, against the transcript kept in
// Transcripts/. A step dropped or moved anywhere in a session shows here, not only at its end.
#include "HeadlessEditorTest.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace fs = std::filesystem;

class FSessionTranscriptTest : public FHeadlessEditorTest
{
protected:
	void SetUp() override
	{
		FHeadlessEditorTest::SetUp();
		CopyProjectData();
	}

	// The lines the editor printed to its standard output for these arguments on the sandbox, after a session
	// that ran.
	std::vector<std::string> Session(std::vector<std::string> Arguments) const
	{
		Arguments.insert(Arguments.begin(), {"--root", Sandbox().string()});
		const FRun Session = Run(Arguments);
		EXPECT_EQ(Session.ExitCode, 0) << Session.Err;
		return SplitLines(Session.Out);
	}

	static std::vector<std::string> Expected(const std::string& Name) { return SplitLines(ReadAll(REPOSITORY_DIR "/Tests/HeadlessEditor/Transcripts/" + Name)); }
};

TEST_F(FSessionTranscriptTest, MenusListsEveryMenuInTurn)
{
	EXPECT_EQ(Session({"menus"}), Expected("menus.txt"));
}

TEST_F(FSessionTranscriptTest, CreateFromTwoTemplatesOpensTheTabAndAnnouncesTheMod)
{
	EXPECT_EQ(Session({"create", "Northline", "--template", "Route", "--template", "ServiceMode"}), Expected("create.txt"));
	EXPECT_NE(ReadAll(Drive("Work/Moravane/Plugins/Northline/Northline.uplugin")).find("\"Category\": \"DLC\""), std::string::npos);
}

// The prompt lists the unsaved map before the plugin's content, and nothing of the cook starts. Without
// --save the prompt is declined.
TEST_F(FSessionTranscriptTest, CookDeclinedAtTheSavePromptListsTheDropDownPromptsAndRefuses)
{
	EXPECT_EQ(Session({"cook", "CalverlyBranchLine", "--dirty", "/CalverlyBranchLine/Maps/Main", "--dirty-map", "/Game/Maps/Hub"}), Expected("cook-declined.txt"));
}

TEST_F(FSessionTranscriptTest, CookSavedAtTheSavePromptListsTheDropDownPromptsAndStartsTheTask)
{
	EXPECT_EQ(Session({"cook", "CalverlyBranchLine", "--dirty", "/CalverlyBranchLine/Maps/Main", "--save", "all"}), Expected("cook-saved.txt"));
	EXPECT_EQ(ReadAll(Drive("Work/Moravane/Plugins/CalverlyBranchLine/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/CalverlyBranchLine/Content/Metadata/DevelopmentAssetRegistry.bin")), "development asset registry of CalverlyBranchLine\n/CalverlyBranchLine/Main\n");
}

TEST_F(FSessionTranscriptTest, DistributeThreePluginsStagesListsAndPacksInOrderThenRemovesTheStaging)
{
	EXPECT_EQ(Session({"distribute", "--calverly5", "--plugin", "CalverlyBranchLine", "--original", "--dlcs", "Moravane_Base, Calverly5_Signals", "--plugin", "ThirdPartyLocos", "--plugin", "ExpressTimetable", "--original"}), Expected("distribute.txt"));

	const std::string Pak = ReadAll(Drive("Work/Moravane-WindowsNoEditor-CalverlyBranchLine.pak"));
	EXPECT_NE(Pak.find("C:/pellow/Moravane/Plugins/DLC/ThirdPartyLocos/Content/Locos/Class47.uasset -> ..\\..\\..\\Moravane/Plugins/DLC/ThirdPartyLocos/Content/Locos/Class47.uasset"), std::string::npos) << Pak;
	const std::string Cooked = "Work/Moravane/Plugins/CalverlyBranchLine/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/CalverlyBranchLine/";
	EXPECT_NE(ReadAll(Drive(Cooked + "Content/CalverlyBranchLine.ugc")).find("\"DLCDependencies\": [\"Moravane_Base\", \"Calverly5_Signals\"],"), std::string::npos);
	EXPECT_EQ(ReadAll(Drive(Cooked + "Content/AssetRegistry.bin")), "asset registry of CalverlyBranchLine\nasset registry of ExpressTimetable\n");
	EXPECT_FALSE(fs::exists(Drive("pellow")));
}
