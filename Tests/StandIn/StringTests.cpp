// The engine behaviours the module leans on, checked against what UE 4.26 is known to do, so that a wrong
// stand-in cannot make a wrong module pass.
#include "CoreMinimal.h"
#include "Misc/Paths.h"
#include "SandboxTest.h"

TEST(StandInStrings, CombineJoinsPartsWithOneSlashAndCollapsesNothing)
{
	EXPECT_EQ(FPaths::Combine(TEXT("C:/x/"), TEXT("a")), TEXT("C:/x/a"));
	EXPECT_EQ(FPaths::Combine(TEXT("a"), TEXT(""), TEXT("b")), TEXT("a/b"));
	EXPECT_EQ(FPaths::Combine(TEXT("a"), TEXT("")), TEXT("a/"));
	EXPECT_EQ(FPaths::Combine(TEXT(""), TEXT("b")), TEXT("b"));
	EXPECT_EQ(FPaths::Combine(TEXT("a/"), TEXT("/b")), TEXT("a//b"));
	EXPECT_EQ(FPaths::Combine(TEXT("a\\"), TEXT("b")), TEXT("a\\b"));
	EXPECT_EQ(FPaths::Combine(TEXT("C:/pellow/")), TEXT("C:/pellow/"));
	EXPECT_EQ(FPaths::Combine(FString(TEXT("C:/a")), TEXT("b/c"), FString(TEXT("d"))), TEXT("C:/a/b/c/d"));
}

TEST(StandInStrings, PrintfFormatsTextAndIntegersAsTheEngineFormatterDoes)
{
	const FString Name = TEXT("Route");
	EXPECT_TRUE(FString::Printf(TEXT("[%s] %d%%"), *Name, 42).Equals(TEXT("[Route] 42%"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FString::Printf(TEXT("%d|%i|%5d|%-3d|"), -7, 8, 9, 1).Equals(TEXT("-7|8|    9|1  |"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FString::Printf(TEXT(".")).Equals(TEXT("."), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FString::Printf(TEXT("%s"), TEXT("\"q\" \\ %d")).Equals(TEXT("\"q\" \\ %d"), ESearchCase::CaseSensitive)) << "arguments are not escaped or re-read";
}

TEST(StandInStrings, ParseIntoArraySplitsOnTheWholeDelimiterWithoutTrimming)
{
	TArray<FString> Pieces;
	EXPECT_EQ(FString(TEXT("A, ,B")).ParseIntoArray(Pieces, TEXT(","), true), 3);
	EXPECT_EQ(ToUtf8Strings(Pieces), (std::vector<std::string>{"A", " ", "B"}));
	FString(TEXT("A,,B,")).ParseIntoArray(Pieces, TEXT(","), false);
	EXPECT_EQ(ToUtf8Strings(Pieces), (std::vector<std::string>{"A", "", "B", ""}));
	FString(TEXT("a::b:c")).ParseIntoArray(Pieces, TEXT("::"), true);
	EXPECT_EQ(ToUtf8Strings(Pieces), (std::vector<std::string>{"a", "b:c"}));
	EXPECT_EQ(FString().ParseIntoArray(Pieces, TEXT(","), false), 0);

	FString Padded = TEXT(" \t DLC_C \r\n");
	Padded.TrimStartAndEndInline();
	EXPECT_TRUE(Padded.Equals(TEXT("DLC_C"), ESearchCase::CaseSensitive));
}

TEST(StandInStrings, SearchesIgnoreCaseUnlessToldOtherwise)
{
	const FString Path = TEXT("C:/pellow/Moravane/Plugins/DLC/A/Content/METADATA/x.bin");
	EXPECT_EQ(Path.Find(TEXT("/metadata/")), 40);
	EXPECT_EQ(Path.Find(TEXT("/metadata/"), ESearchCase::CaseSensitive), INDEX_NONE);
	EXPECT_TRUE(Path.Contains(TEXT("c:/PELLOW/")));
	EXPECT_EQ(Path.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd), 49);
	EXPECT_EQ(Path.Find(TEXT("")), INDEX_NONE);

	EXPECT_TRUE(FString(TEXT("C:/Pellow/a C:/pellow/b")).Replace(TEXT("c:/PELLOW/"), TEXT("")).Equals(TEXT("a b"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FString(TEXT("aaa")).Replace(TEXT("aa"), TEXT("a")).Equals(TEXT("aa"), ESearchCase::CaseSensitive)) << "no re-scan of replaced text";
	EXPECT_TRUE(FString(TEXT("Route")) == FString(TEXT("ROUTE")));
}

TEST(StandInStrings, RelativePathsAreMadeFullFromTheBinariesFolder)
{
	EXPECT_EQ(FPaths::ConvertRelativePathToFull(FString(TEXT("C:/Work/Engine/Binaries/Win64/")), FString(TEXT("../../../Moravane/Plugins/"))), TEXT("C:/Work/Moravane/Plugins/"));
	EXPECT_EQ(FPaths::ConvertRelativePathToFull(FString(TEXT("C:\\Work/"))), TEXT("C:/Work/"));
	EXPECT_EQ(FPaths::ConvertRelativePathToFull(FString(TEXT("C:/a/./b/../c"))), TEXT("C:/a/c"));
	EXPECT_EQ(FPaths::GetCleanFilename(TEXT("C:/a/Plugin/")), TEXT("Plugin"));
	EXPECT_EQ(FPaths::GetCleanFilename(TEXT("C:\\a\\Plugin")), TEXT("Plugin"));
}

using FStandInPathsTest = FSandboxTest;

TEST_F(FStandInPathsTest, TheProjectFolderIsReportedRelativeToTheBinariesFolder)
{
	EXPECT_TRUE(FPaths::ProjectDir().Equals(TEXT("../../../Moravane/"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FPaths::ProjectPluginsDir().Equals(TEXT("../../../Moravane/Plugins/"), ESearchCase::CaseSensitive));
	StandIn::FWorld World = DefaultWorld();
	World.ProjectFilePath = TEXT("D:/Mods/Moravane/Moravane.uproject");
	ResetWorld(World);
	EXPECT_TRUE(FPaths::ProjectDir().Equals(TEXT("D:/Mods/Moravane/"), ESearchCase::CaseSensitive)) << "no relative form across drives";
}

TEST(StandInStrings, TextFormatPutsOrderedArgumentsWhereTheirIndexStands)
{
	const FText Formatted = FText::Format(FText::FromString(TEXT("{1} before {0}, {0} again, {2} left as written")), FText::FromString(TEXT("A")), FText::FromString(TEXT("B")));
	EXPECT_TRUE(Formatted.ToString().Equals(TEXT("B before A, A again, {2} left as written"), ESearchCase::CaseSensitive));
	EXPECT_FALSE(FTextInspector::GetKey(Formatted).IsSet()) << "a formatted text is not a localised literal";
}
