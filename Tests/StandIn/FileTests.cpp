#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformFilemanager.h"
#include "Misc/FileHelper.h"
#include "SandboxTest.h"

using FStandInFileTest = FSandboxTest;

namespace
{
	// As the file(1) tool reads it.
	std::string Encoding(const std::filesystem::path& Path)
	{
		std::string Output;
		if (FILE* Pipe = popen(("file -b --mime-encoding '" + Path.string() + "'").c_str(), "r"))
		{
			char Buffer[256];
			while (fgets(Buffer, sizeof(Buffer), Pipe))
			{
				Output += Buffer;
			}
			pclose(Pipe);
		}
		return Output;
	}
}

TEST_F(FStandInFileTest, SaveStringToFileWritesSevenBitTextAsPlainBytes)
{
	ASSERT_TRUE(FFileHelper::SaveStringToFile(FString(TEXT("{\n  \"a\": 1\n}")), TEXT("C:/out/ascii.txt")));

	EXPECT_EQ(ReadFile("C:/out/ascii.txt"), "{\n  \"a\": 1\n}");
	EXPECT_EQ(Encoding(Host("C:/out/ascii.txt")), "us-ascii\n");
}

TEST_F(FStandInFileTest, SaveStringToFileWritesOtherTextAsUtf16WithAByteOrderMark)
{
	ASSERT_TRUE(FFileHelper::SaveStringToFile(FString(TEXT("ř\x00e9")), TEXT("C:/out/wide.txt")));

	EXPECT_EQ(ReadFile("C:/out/wide.txt"), std::string("\xFF\xFE\x59\x01\xE9\x00", 6));
	EXPECT_EQ(Encoding(Host("C:/out/wide.txt")), "utf-16le\n");
}

TEST_F(FStandInFileTest, SaveStringToFileOfAnEmptyStringLeavesAnEmptyFile)
{
	ASSERT_TRUE(FFileHelper::SaveStringToFile(FString(), TEXT("C:/out/empty.txt")));

	EXPECT_TRUE(Exists("C:/out/empty.txt"));
	EXPECT_EQ(ReadFile("C:/out/empty.txt"), "");
}

TEST_F(FStandInFileTest, FindFilesRecursiveListsFoldersFirstInNameOrderAndFollowsDirectoryLinks)
{
	WriteFile("C:/Cooked/Content/b.uasset", "b");
	WriteFile("C:/Cooked/Content/A.uasset", "a");
	WriteFile("C:/Cooked/Content/Maps/m", "no extension");
	WriteFile("C:/Cooked/top.txt", "t");
	WriteFile("C:/Stage/own.txt", "o");
	std::filesystem::create_directory_symlink(Host("C:/Cooked"), Host("C:/Stage/Link"));

	TArray<FString> Found;
	Found.Add(TEXT("kept"));
	IFileManager::Get().FindFilesRecursive(Found, TEXT("C:/Stage"), TEXT("*.*"), true, false, false);
	IFileManager::Get().FindFilesRecursive(Found, TEXT("C:/Stage/Link"), TEXT("*.*"), true, false, false);

	EXPECT_EQ(ToUtf8Strings(Found), (std::vector<std::string>{
										"kept",
										"C:/Stage/own.txt",
										"C:/Stage/Link/top.txt",
										"C:/Stage/Link/Content/A.uasset",
										"C:/Stage/Link/Content/b.uasset",
										"C:/Stage/Link/Content/Maps/m",
										"C:/Stage/Link/top.txt",
										"C:/Stage/Link/Content/A.uasset",
										"C:/Stage/Link/Content/b.uasset",
										"C:/Stage/Link/Content/Maps/m",
									}));
}

TEST_F(FStandInFileTest, FindFilesRecursiveInAMissingFolderFindsNothingAndClearsTheListWhenAsked)
{
	TArray<FString> Found;
	Found.Add(TEXT("kept"));

	IFileManager::Get().FindFilesRecursive(Found, TEXT("C:/Missing"), TEXT("*.*"), true, false, true);

	EXPECT_EQ(ToUtf8Strings(Found), std::vector<std::string>{});
}

TEST_F(FStandInFileTest, ThePlatformFileChainIsThePhysicalLayerAndCreatesWholeTrees)
{
	IPlatformFile& PlatformFile = FPlatformFileManager::Get().GetPlatformFile();
	EXPECT_EQ(&PlatformFile, &IPlatformFile::GetPlatformPhysical());

	EXPECT_TRUE(PlatformFile.CreateDirectoryTree(TEXT("C:/pellow/Moravane/Plugins/DLC")));

	EXPECT_TRUE(std::filesystem::is_directory(Host("C:/pellow/Moravane/Plugins/DLC")));
	EXPECT_TRUE(PlatformFile.DirectoryExists(TEXT("C:/pellow/")));
	EXPECT_FALSE(PlatformFile.FileExists(TEXT("C:/pellow")));
}

TEST_F(FStandInFileTest, RelativeFileNamesAreTakenFromTheBinariesFolder)
{
	WriteFile("C:/Work/Engine/Binaries/Win64/relative.txt", "found from the binaries folder");

	EXPECT_TRUE(IFileManager::Get().FileExists(TEXT("relative.txt")));
	EXPECT_TRUE(IFileManager::Get().Delete(TEXT("relative.txt")));
	EXPECT_FALSE(Exists("C:/Work/Engine/Binaries/Win64/relative.txt"));
	EXPECT_FALSE(IFileManager::Get().FileExists(TEXT(""))) << "the empty name is the binaries folder itself";
}

TEST_F(FStandInFileTest, DeletingAMissingFileSucceedsUnlessTheFileIsRequiredToExist)
{
	EXPECT_TRUE(IFileManager::Get().Delete(TEXT("C:/nothing.txt")));
	EXPECT_FALSE(IFileManager::Get().Delete(TEXT("C:/nothing.txt"), true, false, true));
}
