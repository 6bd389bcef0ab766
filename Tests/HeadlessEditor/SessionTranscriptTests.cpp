// Whole sessions of ugc-editor on the sample: every line it prints, in order, against the transcript kept in
// Transcripts/. A step dropped or moved anywhere in a session shows here, not only at its end.
#include "SandboxTest.h"
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace fs = std::filesystem;

class FSessionTranscriptTest : public ::testing::Test
{
protected:
	// A fresh copy of the sample sandbox with the project data the module reads (icons and templates).
	void SetUp() override
	{
		std::string Template = (fs::temp_directory_path() / "ugc-transcript-XXXXXX").string();
		ASSERT_NE(mkdtemp(&Template[0]), nullptr);
		Root = Template;
		fs::copy(SAMPLE_SANDBOX_DIR, Root / "sandbox", fs::copy_options::recursive);
		fs::copy(REPOSITORY_DIR "/Resources", Root / "sandbox/C/Work/Moravane/Resources", fs::copy_options::recursive);
		fs::copy(REPOSITORY_DIR "/Templates", Root / "sandbox/C/Work/Moravane/Templates", fs::copy_options::recursive);
	}
	void TearDown() override { fs::remove_all(Root); }

	// The lines the editor printed to its standard output for "--root <sandbox>" and these arguments.
	std::vector<std::string> Session(std::vector<std::string> Arguments) const
	{
		const std::string OutPath = (Root / "stdout.txt").string();
		Arguments.insert(Arguments.begin(), {UGC_EDITOR_PATH, "--root", (Root / "sandbox").string()});
		std::vector<char*> Argv;
		for (std::string& Argument : Arguments)
		{
			Argv.push_back(&Argument[0]);
		}
		Argv.push_back(nullptr);

		posix_spawn_file_actions_t Actions;
		posix_spawn_file_actions_init(&Actions);
		posix_spawn_file_actions_addopen(&Actions, 1, OutPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
		pid_t Child = -1;
		const int SpawnError = posix_spawn(&Child, UGC_EDITOR_PATH, &Actions, nullptr, Argv.data(), environ);
		posix_spawn_file_actions_destroy(&Actions);
		int Status = -1;
		if (SpawnError == 0)
		{
			waitpid(Child, &Status, 0);
		}
		EXPECT_TRUE(WIFEXITED(Status) && WEXITSTATUS(Status) == 0) << "status " << Status;
		return Transcript(OutPath);
	}

	static std::vector<std::string> Transcript(const std::string& Path)
	{
		std::ifstream Stream(Path, std::ios::binary);
		return SplitLines(std::string(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>()));
	}

	static std::vector<std::string> Expected(const std::string& Name) { return Transcript(std::string(REPOSITORY_DIR "/Tests/HeadlessEditor/Transcripts/") + Name); }

	// A cook's lines without those of the automation task's own progress, which are the task service's.
	static std::vector<std::string> WithoutTaskProgress(const std::vector<std::string>& Lines)
	{
		std::vector<std::string> Kept;
		for (const std::string& Line : Lines)
		{
			if (Line.rfind("Notification:", 0) != 0 && Line.find("UATHelper") == std::string::npos)
			{
				Kept.push_back(Line);
			}
		}
		return Kept;
	}

	fs::path Root;
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
	EXPECT_EQ(WithoutTaskProgress(Session({"cook", "CalverlyBranchLine", "--dirty", "/CalverlyBranchLine/Maps/Main", "--save", "none"})), Expected("cook-declined.txt"));
}

TEST_F(FSessionTranscriptTest, CookSavedAtTheSavePromptListsTheDropDownPromptsAndStartsTheTask)
{
	EXPECT_EQ(WithoutTaskProgress(Session({"cook", "CalverlyBranchLine", "--dirty", "/CalverlyBranchLine/Maps/Main", "--save", "all"})), Expected("cook-saved.txt"));
}

TEST_F(FSessionTranscriptTest, DistributeThreePluginsStagesListsAndPacksInOrder)
{
	EXPECT_EQ(Session({"distribute", "--calverly5", "--plugin", "CalverlyBranchLine", "--original", "--dlcs", "Moravane_Base, Calverly5_Signals", "--plugin", "ThirdPartyLocos", "--plugin", "ExpressTimetable", "--original"}), Expected("distribute.txt"));
}
