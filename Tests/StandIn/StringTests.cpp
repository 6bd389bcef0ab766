// The engine behaviours the module leans on, checked against what UE 4.26 is known to do, so that a wrong
// stand-in cannot make a wrong module pass.
#include "CoreMinimal.h"
#include "Misc/Paths.h"
#include "SandboxTest.h"

TEST(StandInStrings, CombineJoinsPartsWithOneSlashAndCollapsesNothing)
{
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT("C:/x/"), TEXT("a"))), "C:/x/a");
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT("a"), TEXT(""), TEXT("b"))), "a/b");
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT("a"), TEXT(""))), "a/");
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT(""), TEXT("b"))), "b");
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT("a/"), TEXT("/b"))), "a//b");
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT("a\\"), TEXT("b"))), "a\\b");
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT("C:/pellow/"))), "C:/pellow/");
	EXPECT_EQ(Utf8(FPaths::Combine(FString(TEXT("C:/a")), TEXT("b/c"), FString(TEXT("d")))), "C:/a/b/c/d");
}

TEST(StandInStrings, AppendingTakesStringsPointersAndCharactersButNeverANullCharacter)
{
	FString Text = TEXT("a");
	Text += FString(TEXT("b"));
	Text += TEXT("c");
	const TCHAR* Pointer = TEXT("d");
	Text += Pointer;
	Text += TEXT('e');
	Text += TEXT('\0');
	EXPECT_EQ(Utf8(Text), "abcde");
	EXPECT_EQ(Text.Len(), 5);
}

TEST(StandInStrings, PrintfFormatsTextAndIntegersAsTheEngineFormatterDoes)
{
	const FString Name = TEXT("Route");
	EXPECT_EQ(Utf8(FString::Printf(TEXT("[%s] %d%%"), *Name, 42)), "[Route] 42%");
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%d|%i|%5d|%-3d|"), -7, 8, 9, 1)), "-7|8|    9|1  |");
	EXPECT_EQ(Utf8(FString::Printf(TEXT("."))), ".");
}

TEST(StandInStrings, PrintfTakesStringArgumentsAsTheyStandBackslashesAndAll)
{
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%s"), TEXT("\"q\" \\ %d"))), "\"q\" \\ %d") << "arguments are not escaped or re-read";
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%s|%-9s|"), TEXT("\\\\srv\\a"), TEXT("\\\\srv\\b"))), "\\\\srv\\a|\\\\srv\\b  |");
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
	EXPECT_EQ(ToUtf8Strings(Pieces), std::vector<std::string>{}) << "the array is emptied first";
}

TEST(StandInStrings, TrimStartAndEndRemovesBlanksTabsAndLineEndsAtBothEnds)
{
	FString Padded = TEXT(" \t DLC C \r\n");

	Padded.TrimStartAndEndInline();

	EXPECT_EQ(Utf8(Padded), "DLC C");
}

TEST(StandInStrings, SearchesAndComparisonsIgnoreCaseUnlessToldOtherwise)
{
	const FString Path = TEXT("C:/pellow/Moravane/Plugins/DLC/A/Content/METADATA/x.bin");
	EXPECT_EQ(Path.Find(TEXT("/metadata/")), 40);
	EXPECT_EQ(Path.Find(TEXT("/metadata/"), ESearchCase::CaseSensitive), INDEX_NONE);
	EXPECT_TRUE(Path.Contains(TEXT("c:/PELLOW/")));
	EXPECT_EQ(Path.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd), 49);
	EXPECT_EQ(Path.Find(TEXT("")), INDEX_NONE);
	EXPECT_TRUE(FString(TEXT("Route")) == FString(TEXT("ROUTE")));
}

TEST(StandInStrings, ReplaceIgnoresCaseAndDoesNotRescanWhatItReplaced)
{
	EXPECT_EQ(Utf8(FString(TEXT("C:/Pellow/a C:/pellow/b")).Replace(TEXT("c:/PELLOW/"), TEXT(""))), "a b");
	EXPECT_EQ(Utf8(FString(TEXT("aaa")).Replace(TEXT("aa"), TEXT("a"))), "aa");
}

TEST(StandInStrings, RelativePathsAreMadeFullAndNormalised)
{
	EXPECT_EQ(Utf8(FPaths::ConvertRelativePathToFull(FString(TEXT("C:/Work/Engine/Binaries/Win64/")), FString(TEXT("../../../Moravane/Plugins/")))), "C:/Work/Moravane/Plugins/");
	EXPECT_EQ(Utf8(FPaths::ConvertRelativePathToFull(FString(TEXT("C:\\Work/")))), "C:/Work/");
	EXPECT_EQ(Utf8(FPaths::ConvertRelativePathToFull(FString(TEXT("C:/a/./b/../c")))), "C:/a/c");
}

TEST(StandInStrings, CleanFilenameIsTheLastPartOfEitherSlashAndATrailingSlashIsDropped)
{
	EXPECT_EQ(Utf8(FPaths::GetCleanFilename(TEXT("C:/a/Plugin/"))), "Plugin");
	EXPECT_EQ(Utf8(FPaths::GetCleanFilename(TEXT("C:\\a\\Plugin"))), "Plugin");
}

using FStandInPathsTest = FSandboxTest;

TEST_F(FStandInPathsTest, TheProjectFolderIsReportedRelativeToTheBinariesFolderOrOnAnotherDriveInFull)
{
	const std::string OnTheDrive = Utf8(FPaths::ProjectDir());
	const std::string Plugins = Utf8(FPaths::ProjectPluginsDir());
	StandIn::FWorld World = DefaultWorld();
	World.ProjectFilePath = TEXT("D:/Mods/Moravane/Moravane.uproject");
	ResetWorld(World);

	EXPECT_EQ(OnTheDrive, "../../../Moravane/");
	EXPECT_EQ(Plugins, "../../../Moravane/Plugins/");
	EXPECT_EQ(Utf8(FPaths::ProjectDir()), "D:/Mods/Moravane/");
}

TEST(StandInStrings, TextFormatPutsOrderedArgumentsWhereTheirIndexStands)
{
	const FText Formatted = FText::Format(FText::FromString(TEXT("{1} before {0}, {0} again, {2} left as written")), FText::FromString(TEXT("A")), FText::FromString(TEXT("B")));

	EXPECT_EQ(Utf8(Formatted.ToString()), "B before A, A again, {2} left as written");
	EXPECT_FALSE(FTextInspector::GetKey(Formatted).IsSet()) << "a formatted text is not a localised literal";
}
