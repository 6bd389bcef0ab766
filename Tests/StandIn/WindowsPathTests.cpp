// Paths of the Windows world as NTFS has them: names found whatever their case, "." and ".." taken away
// before anything is looked up, and nothing reached outside the drive root, by any path or link.
#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformFilemanager.h"
#include "Misc/FileHelper.h"
#include "SandboxTest.h"
#include "StandIn/Records/PathRefusalRecord.h"
#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace fs = std::filesystem;

namespace
{
	IPlatformFile& PlatformFile()
	{
		return FPlatformFileManager::Get().GetPlatformFile();
	}

	// The entries of a host folder as the host has them, sorted.
	std::vector<std::string> HostNamesIn(const fs::path& Folder)
	{
		std::vector<std::string> Names;
		for (const fs::directory_entry& Entry : fs::directory_iterator(Folder))
		{
			Names.push_back(Entry.path().filename().string());
		}
		std::sort(Names.begin(), Names.end());
		return Names;
	}

	std::vector<std::string> RefusedPaths()
	{
		std::vector<std::string> Paths;
		for (const StandIn::FPathRefusalRecord* Record : StandIn::JournalRecords<StandIn::FPathRefusalRecord>())
		{
			Paths.push_back(StandIn::ToUtf8(Record->Path));
		}
		return Paths;
	}

	bool Holds(const std::vector<std::string>& Items, const std::string& Item)
	{
		return std::find(Items.begin(), Items.end(), Item) != Items.end();
	}
}

class FWindowsPathTest : public FSandboxTest
{
protected:
	void TearDown() override
	{
		std::error_code Error;
		fs::remove_all(Outside(), Error);
		FSandboxTest::TearDown();
	}

	// A folder beside the drive root, which no path of the world may reach.
	fs::path Outside() const { return Root.string() + "-outside"; }
};

TEST_F(FWindowsPathTest, AnExistingEntryIsFoundWhateverCaseThePathAndItsDriveLetterUse)
{
	fs::create_directories(Root / "C/Work/Plugins/foo");
	std::ofstream(Root / "C/Work/Plugins/foo/foo.uplugin") << "{}";
	fs::create_directories(Root / "C/Mods/Café");
	std::ofstream(Root / "C/Mods/Café/Žluť.txt") << "z";

	EXPECT_EQ(PlatformFile().FileSize(TEXT("c:\\WORK\\plugins\\Foo\\Foo.UPLUGIN")), 2);
	EXPECT_TRUE(PlatformFile().DirectoryExists(TEXT("C:/work/PLUGINS/")));
	EXPECT_EQ(PlatformFile().FileSize(TEXT("C:/MODS/CAFÉ/žLUŤ.TXT")), 1);
	EXPECT_FALSE(PlatformFile().FileExists(TEXT("C:/Work/Plugins/fo/foo.uplugin")));
}

TEST_F(FWindowsPathTest, NewEntriesKeepTheirCaseAndJoinAnEntryThatDiffersOnlyInCase)
{
	fs::create_directories(Root / "C/Work/Plugins/foo");

	ASSERT_TRUE(PlatformFile().CreateDirectoryTree(TEXT("C:/Work/Plugins/Foo/Content/Maps")));
	ASSERT_TRUE(FFileHelper::SaveStringToFile(FString(TEXT("x")), TEXT("c:/WORK/PLUGINS/FOO/content/NewMap.umap")));

	EXPECT_EQ(HostNamesIn(Root / "C/Work/Plugins"), (std::vector<std::string>{"foo"}));
	EXPECT_EQ(HostNamesIn(Root / "C/Work/Plugins/foo/Content"), (std::vector<std::string>{"Maps", "NewMap.umap"}));
}

TEST_F(FWindowsPathTest, DotAndDotDotAreTakenAwayAndNeverClimbAboveTheDriveRoot)
{
	ASSERT_TRUE(FFileHelper::SaveStringToFile(FString(TEXT("a")), TEXT("C:/../../Escaped/a.txt")));
	ASSERT_TRUE(FFileHelper::SaveStringToFile(FString(TEXT("b")), TEXT("C:\\Work\\.\\Gone\\..\\..\\..\\Work\\b.txt")));
	ASSERT_TRUE(FFileHelper::SaveStringToFile(FString(TEXT("c")), TEXT("\\..\\Rooted\\c.txt")));

	EXPECT_EQ(HostNamesIn(Root), (std::vector<std::string>{"C"}));
	EXPECT_EQ(HostNamesIn(Root / "C"), (std::vector<std::string>{"Escaped", "Rooted", "Work"}));
	EXPECT_EQ(HostNamesIn(Root / "C/Work"), (std::vector<std::string>{"b.txt"}));
	EXPECT_FALSE(fs::exists(Root.parent_path() / "Escaped"));
}

TEST_F(FWindowsPathTest, ALinkLeadingOutsideTheRootIsAMissingPathAndEachRefusalIsJournalled)
{
	fs::create_directories(Outside() / "Inner");
	std::ofstream(Outside() / "secret.txt") << "secret";
	fs::create_directories(Root / "C/Stage");
	fs::create_directory_symlink(Outside(), Root / "C/Stage/Absolute");
	// From C/Stage, three folders up is the drive root's parent.
	fs::create_directory_symlink("../../..", Root / "C/Stage/Relative");
	fs::create_directories(Root / "C/Other");
	fs::create_directory_symlink("../Other", Root / "C/Stage/Inside");
	fs::create_directory_symlink(Outside() / "Inner", Root / "C/Other/Away");

	EXPECT_FALSE(PlatformFile().FileExists(TEXT("C:/Stage/Absolute/secret.txt")));
	EXPECT_FALSE(PlatformFile().CreateDirectory(TEXT("c:/stage/relative/Made")));
	EXPECT_FALSE(FFileHelper::SaveStringToFile(FString(TEXT("x")), TEXT("C:/Stage/Inside/Away/x.txt")));
	TArray<FString> Found;
	IFileManager::Get().FindFilesRecursive(Found, TEXT("C:/Stage"), TEXT("*"), false, true, false);

	EXPECT_EQ(ToUtf8Strings(Found), (std::vector<std::string>{"C:/Stage/Inside"}));
	EXPECT_EQ(HostNamesIn(Outside()), (std::vector<std::string>{"Inner", "secret.txt"}));
	EXPECT_TRUE(fs::is_empty(Outside() / "Inner"));
	EXPECT_FALSE(fs::exists(Root.parent_path() / "Made"));
	const std::vector<std::string> Refused = RefusedPaths();
	EXPECT_TRUE(Holds(Refused, "C:/Stage/Absolute/secret.txt"));
	EXPECT_TRUE(Holds(Refused, "c:/stage/relative/Made"));
	EXPECT_TRUE(Holds(Refused, "C:/Stage/Inside/Away/x.txt"));
	EXPECT_TRUE(Holds(Refused, "C:/Stage/Absolute"));
}

TEST_F(FWindowsPathTest, CmdExeRemovesNothingThroughALinkLeadingOutsideTheRoot)
{
	fs::create_directories(Outside() / "Inner");
	std::ofstream(Outside() / "Inner/kept.txt") << "kept";
	fs::create_directories(Root / "C/pellow");
	fs::create_directory_symlink(Outside(), Root / "C/pellow/Out");

	EXPECT_EQ(system("cmd.exe /c rmdir /s /q \"C:\\pellow\\out\\Inner\""), 2);

	EXPECT_TRUE(fs::exists(Outside() / "Inner/kept.txt"));
}
