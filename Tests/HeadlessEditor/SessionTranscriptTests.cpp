// Whole sessions of ugc-editor on the sample: every line it prints, in order, against the transcript kept in
// Transcripts/. A step dropped or moved anywhere in a session shows here, not only at its end.
#include "HeadlessEditorTest.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

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
}

TEST_F(FSessionTranscriptTest, CookDeclinedAtTheSavePromptListsTheDropDownPromptsAndRefuses)
{
	EXPECT_EQ(Session({"cook", "CalverlyBranchLine", "--dirty", "/CalverlyBranchLine/Maps/Main", "--save", "none"}), Expected("cook-declined.txt"));
}

TEST_F(FSessionTranscriptTest, CookSavedAtTheSavePromptListsTheDropDownPromptsAndStartsTheTask)
{
	EXPECT_EQ(Session({"cook", "CalverlyBranchLine", "--dirty", "/CalverlyBranchLine/Maps/Main", "--save", "all"}), Expected("cook-saved.txt"));
}

TEST_F(FSessionTranscriptTest, DistributeThreePluginsStagesListsAndPacksInOrder)
{
	EXPECT_EQ(Session({"distribute", "--calverly5", "--plugin", "CalverlyBranchLine", "--original", "--dlcs", "Moravane_Base, Calverly5_Signals", "--plugin", "ThirdPartyLocos", "--plugin", "ExpressTimetable", "--original"}), Expected("distribute.txt"));
}
