#include "CookTest.h"
#include "FileHelpers.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"

namespace
{
	std::vector<std::string> Names(const std::vector<FString>& Items)
	{
		std::vector<std::string> Result;
		for (const FString& Item : Items)
		{
			Result.push_back(StandIn::ToUtf8(Item));
		}
		return Result;
	}
}

class FUnsavedContentTest : public FCookTest
{
protected:
	// The project's plugins MyRoute and Route, discovered in a world with these unsaved packages.
	void StartEditor(std::vector<StandIn::FDirtyPackage> DirtyPackages, StandIn::ESavePromptAnswer Answer = StandIn::ESavePromptAnswer::SaveAll)
	{
		StandIn::FWorld World = DefaultWorld();
		World.DirtyPackages = std::move(DirtyPackages);
		World.SavePromptAnswer = Answer;
		ResetWorld(World);
		WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
		WritePlugin("C:/Work/Moravane/Plugins/Route/Route.uplugin");
		WritePlugin("C:/Work/Moravane/Plugins/Route2/Route2.uplugin");
		StandIn::DiscoverPlugins();
	}

	void Cook(const TCHAR* PluginName)
	{
		ASSERT_TRUE(StandIn::ClickMenuEntry(OpenDropDown(), PluginName));
	}
};

TEST_F(FUnsavedContentTest, UnsavedContentOfThePluginPromptsForEveryDirtyPackageThenCooksOnceSaved)
{
	StartEditor({{TEXT("/Game/Maps/Hub"), true}, {TEXT("/MyRoute/Data/Track"), false}});

	Cook(TEXT("MyRoute"));

	const std::vector<const StandIn::FSavePromptRecord*> Prompts = SavePrompts();
	ASSERT_EQ(Prompts.size(), 1u);
	EXPECT_TRUE(Prompts[0]->bPromptUserToSave);
	EXPECT_TRUE(Prompts[0]->bSaveMapPackages);
	EXPECT_TRUE(Prompts[0]->bSaveContentPackages);
	EXPECT_FALSE(Prompts[0]->bFastSave);
	EXPECT_FALSE(Prompts[0]->bNotifyNoPackagesSaved);
	EXPECT_TRUE(Prompts[0]->bCanBeDeclined);
	EXPECT_FALSE(Prompts[0]->bOutPackagesNeededSavingGiven);
	EXPECT_TRUE(Prompts[0]->bPromptShown);
	EXPECT_EQ(Names(Prompts[0]->PackageNames), std::vector<std::string>({"/Game/Maps/Hub", "/MyRoute/Data/Track"}));
	EXPECT_EQ(CookJournal(), std::vector<std::string>({
								 "Save prompt: /Game/Maps/Hub, /MyRoute/Data/Track -> Save Selected",
								 "Automation task: Cooking MyRoute (Windows): BuildDLC -Project=\"C:/Work/Moravane/Moravane.uproject\" -PluginPath=\"C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin\" -ue4exe=\"C:/Work/\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe -nocompile -TargetPlatform=WindowsNoEditor -dlcName=\"MyRoute\",\"MyRoute\" ",
							 }));
}

TEST_F(FUnsavedContentTest, MapOfThePluginLeftUnsavedShowsTheMessageAndCooksNothing)
{
	StartEditor({{TEXT("/MyRoute/Maps/Main"), true}}, StandIn::ESavePromptAnswer::DontSave);

	Cook(TEXT("MyRoute"));

	EXPECT_EQ(CookJournal(), std::vector<std::string>({
								 "Save prompt: /MyRoute/Maps/Main -> Don't Save",
								 "Message: You must save all assets in MyRoute before you can share it.",
							 }));
	const std::vector<const StandIn::FMessageBoxRecord*> Boxes = StandIn::JournalRecords<StandIn::FMessageBoxRecord>();
	ASSERT_EQ(Boxes.size(), 1u);
	EXPECT_EQ(Boxes[0]->Type, EAppMsgType::Ok);
}

TEST_F(FUnsavedContentTest, TheUnsavedContentMessageIsLocalised)
{
	StandIn::FWorld World = DefaultWorld();
	World.DirtyPackages = {{TEXT("/MyRoute/Data/Track"), false}};
	World.SavePromptAnswer = StandIn::ESavePromptAnswer::DontSave;
	ResetWorld(World);
	Translate("UGCPackager", "PackageUGCError_UnsavedContent", "Před sdílením uložte všechny assety v {0}.");
	WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	StandIn::DiscoverPlugins();

	Cook(TEXT("MyRoute"));

	EXPECT_EQ(MessageBoxTexts(), std::vector<std::string>({"Před sdílením uložte všechny assety v MyRoute."}));
}

TEST_F(FUnsavedContentTest, CancelledPromptShowsTheMessageAndCooksNothing)
{
	StartEditor({{TEXT("/MyRoute/Data/Track"), false}}, StandIn::ESavePromptAnswer::Cancel);

	Cook(TEXT("MyRoute"));

	EXPECT_EQ(SavePrompts().size(), 1u);
	EXPECT_TRUE(UatTasks().empty());
	EXPECT_EQ(MessageBoxTexts(), std::vector<std::string>({"You must save all assets in MyRoute before you can share it."}));
}

TEST_F(FUnsavedContentTest, UnsavedPackagesOfOtherPluginsAndTheGameDoNotPrompt)
{
	StartEditor({{TEXT("/Game/Maps/Hub"), true}, {TEXT("/Route/Data/Track"), false}}, StandIn::ESavePromptAnswer::DontSave);

	Cook(TEXT("MyRoute"));

	EXPECT_TRUE(SavePrompts().empty());
	EXPECT_EQ(UatTasks().size(), 1u);
	EXPECT_TRUE(MessageBoxTexts().empty());
}

TEST_F(FUnsavedContentTest, UnsavedPackageOfAPluginWhoseFolderNameExtendsThisOnesBlocksTheCook)
{
	StartEditor({{TEXT("/Route2/Data/Track"), false}}, StandIn::ESavePromptAnswer::DontSave);

	Cook(TEXT("Route"));

	EXPECT_EQ(SavePrompts().size(), 1u);
	EXPECT_TRUE(UatTasks().empty());
	EXPECT_EQ(MessageBoxTexts(), std::vector<std::string>({"You must save all assets in Route before you can share it."}));
}

TEST_F(FUnsavedContentTest, UnsavedPackageWhoseFileBeginsWithThePluginsFolderInOtherLetterCaseBlocksTheCook)
{
	StandIn::FWorld World = DefaultWorld();
	World.DirtyPackages = {{TEXT("/Shunting/Data/Track"), false}};
	World.SavePromptAnswer = StandIn::ESavePromptAnswer::DontSave;
	ResetWorld(World);
	WritePlugin("C:/Work/Moravane/Plugins/Route/Route.uplugin");
	WritePlugin("C:/Work/Moravane/Plugins/ROUTE_Yard/Shunting.uplugin");
	StandIn::DiscoverPlugins();

	Cook(TEXT("Route"));

	EXPECT_EQ(SavePrompts().size(), 1u);
	EXPECT_TRUE(UatTasks().empty());
	EXPECT_EQ(MessageBoxTexts(), std::vector<std::string>({"You must save all assets in Route before you can share it."}));
}

TEST_F(FUnsavedContentTest, UnsavedPackageWhoseFileHoldsThePluginsFolderOnlyFurtherInDoesNotPrompt)
{
	// A second checkout beside the engine folder, whose backup plugin is mounted from
	// ../../../../Moravane/Plugins/MyRoute/Backup: the file name holds ../../../Moravane/Plugins/MyRoute
	// behind its first "../".
	StandIn::FWorld World = DefaultWorld();
	World.DirtyPackages = {{TEXT("/RouteBackup/Data/Track"), false}};
	World.SavePromptAnswer = StandIn::ESavePromptAnswer::DontSave;
	ResetWorld(World);
	WriteFile("C:/Work/Moravane/Moravane.uproject", "{\"FileVersion\": 3, \"AdditionalPluginDirectories\": [\"C:/Moravane/Plugins/MyRoute\"]}");
	WritePlugin("C:/Work/Moravane/Plugins/MyRoute/MyRoute.uplugin");
	WritePlugin("C:/Moravane/Plugins/MyRoute/Backup/RouteBackup.uplugin");
	StandIn::DiscoverPlugins();
	TArray<UPackage*> Dirty;
	FEditorFileUtils::GetDirtyContentPackages(Dirty);
	FString FileName;
	ASSERT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(Dirty[0]->GetFName().ToString(), FileName));
	ASSERT_EQ(FileName.Find(TEXT("../../../Moravane/Plugins/MyRoute")), 3);

	ASSERT_TRUE(StandIn::ClickMenuEntry(OpenDropDown(), TEXT("MyRoute")));

	EXPECT_TRUE(SavePrompts().empty());
	EXPECT_EQ(UatTasks().size(), 1u);
}

TEST_F(FUnsavedContentTest, PackageThatNoMountedRootHoldsIsSkipped)
{
	StartEditor({{TEXT("/Unmounted/Data/Track"), false}}, StandIn::ESavePromptAnswer::DontSave);

	Cook(TEXT("MyRoute"));

	EXPECT_TRUE(SavePrompts().empty());
	EXPECT_EQ(UatTasks().size(), 1u);
}

TEST_F(FUnsavedContentTest, PackageThatDoesNotConvertDoesNotHideTheUnsavedPackagesAfterIt)
{
	StartEditor({{TEXT("/Unmounted/Data/Track"), false}, {TEXT("/MyRoute/Maps/Main"), true}}, StandIn::ESavePromptAnswer::DontSave);

	Cook(TEXT("MyRoute"));

	EXPECT_EQ(SavePrompts().size(), 1u);
	EXPECT_TRUE(UatTasks().empty());
	EXPECT_EQ(MessageBoxTexts(), std::vector<std::string>({"You must save all assets in MyRoute before you can share it."}));
}
