#include "CoreMinimal.h"
#include "DesktopPlatformModule.h"
#include "FileHelpers.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "GenericPlatform/GenericWindow.h"
#include "Interfaces/IMainFrameModule.h"
#include "Modules/ModuleManager.h"
#include "SandboxTest.h"
#include "Styling/StyleDefaults.h"
#include "UObject/Package.h"
#include "Widgets/SWindow.h"

// The engine services the cook command meets, against the engine's behaviour.

namespace
{
	class FTestContext : public FBindingContext
	{
	public:
		FTestContext()
			: FBindingContext(TEXT("StandInTest"), FText::FromString(TEXT("Test")), NAME_None, TEXT("CoreStyle")) {}
	};

	// A command of a context no test leaves registered.
	TSharedPtr<FUICommandInfo> MakeCommand(const TCHAR* Name, const TCHAR* Label)
	{
		TSharedPtr<FUICommandInfo> Command;
		FUICommandInfo::MakeCommandInfo(MakeShared<FTestContext>(), Command, Name, FText::FromString(Label), FText::FromString(TEXT("Its tooltip")), FSlateIcon(TEXT("CoreStyle"), TEXT("Icons.Command")), EUserInterfaceActionType::Button, FInputChord());
		FInputBindingManager::Get().RemoveContextByName(TEXT("StandInTest"));
		return Command;
	}

	std::vector<std::string> PackageNames(const TArray<UPackage*>& Packages)
	{
		std::vector<std::string> Names;
		for (const UPackage* Package : Packages)
		{
			Names.push_back(StandIn::ToUtf8(Package->GetFName().ToString()));
		}
		return Names;
	}
}

TEST_F(FSandboxTest, ModuleIsLoadedOnceAndStaysLoadedWhileAnUnknownOneIsNullOrStopsACheckedLoad)
{
	IDesktopPlatform* First = FDesktopPlatformModule::Get();
	ASSERT_NE(First, nullptr);
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TEXT("DesktopPlatform")));
	EXPECT_EQ(FDesktopPlatformModule::Get(), First);
	EXPECT_EQ(FModuleManager::Get().LoadModule(TEXT("NoSuchModule")), nullptr);
	EXPECT_DEATH(FModuleManager::LoadModuleChecked<IModuleInterface>(TEXT("NoSuchModule")), "Assertion failed");
}

TEST_F(FSandboxTest, StartUpLoadsTheProjectsDefaultPhaseModulesInItsOrderThenThePluginsModules)
{
	WriteFile("C:/Work/Moravane/Moravane.uproject", "{\"FileVersion\": 3, \"Modules\": ["
													"{\"Name\": \"MainFrame\", \"LoadingPhase\": \"PostEngineInit\"},"
													"{\"Name\": \"DesktopPlatform\"},"
													"{\"Name\": \"AssetRegistry\", \"LoadingPhase\": \"Default\"}]}");

	StandIn::LoadStartupModules();

	EXPECT_EQ(StandIn::LoadedModules(), (std::vector<FString>{TEXT("DesktopPlatform"), TEXT("AssetRegistry"), TEXT("PluginBrowser")}));
}

TEST_F(FSandboxTest, MainFrameParentWindowHasANativeWindowWithAHandle)
{
	const TSharedPtr<SWindow> ParentWindow = FModuleManager::LoadModuleChecked<IMainFrameModule>(TEXT("MainFrame")).GetParentWindow();
	ASSERT_TRUE(ParentWindow.IsValid());
	ASSERT_TRUE(ParentWindow->GetNativeWindow().IsValid());
	EXPECT_NE(ParentWindow->GetNativeWindow()->GetOSWindowHandle(), nullptr);
}

TEST_F(FSandboxTest, MappingANullCommandIsAFailedEnsureAndMapsNothing)
{
	const TSharedRef<FUICommandList> CommandList = MakeShared<FUICommandList>();
	CommandList->MapAction(TSharedPtr<const FUICommandInfo>(), FExecuteAction::CreateLambda([]() {
						   }));

	const std::vector<std::string> Lines = LogLines();
	ASSERT_EQ(Lines.size(), 1u);
	EXPECT_EQ(Lines[0].rfind("LogOutputDevice: Error: Ensure condition failed: InUICommandInfo.IsValid()", 0), 0u) << Lines[0];
}

TEST_F(FSandboxTest, CommandListRunsTheLastActionMappedToACommandAndNothingForAnother)
{
	const TSharedPtr<FUICommandInfo> Mapped = MakeCommand(TEXT("Mapped"), TEXT("Mapped"));
	const TSharedPtr<FUICommandInfo> SameName = MakeCommand(TEXT("Mapped"), TEXT("Mapped"));
	std::vector<std::string> Runs;
	const TSharedRef<FUICommandList> CommandList = MakeShared<FUICommandList>();
	CommandList->MapAction(Mapped, FExecuteAction::CreateLambda([&Runs]() {
							   Runs.push_back("first");
						   }));
	CommandList->MapAction(Mapped, FExecuteAction::CreateLambda([&Runs]() {
							   Runs.push_back("second");
						   }));

	EXPECT_TRUE(CommandList->ExecuteAction(Mapped.ToSharedRef()));
	EXPECT_FALSE(CommandList->ExecuteAction(SameName.ToSharedRef()));
	EXPECT_EQ(Runs, std::vector<std::string>({"second"}));
}

TEST_F(FSandboxTest, MenuSectionShowsItsHeadingOnlyWithItsFirstEntryAndASeparatorBetweenSections)
{
	const TSharedPtr<FUICommandInfo> Command = MakeCommand(TEXT("Entry"), TEXT("Entry"));
	FMenuBuilder MenuBuilder(true, MakeShared<FUICommandList>());
	MenuBuilder.BeginSection(TEXT("Empty"), FText::FromString(TEXT("Nothing here")));
	MenuBuilder.EndSection();
	MenuBuilder.BeginSection(TEXT("First"), FText::FromString(TEXT("First")));
	MenuBuilder.AddMenuEntry(Command);
	MenuBuilder.EndSection();
	MenuBuilder.BeginSection(TEXT("Second"), FText::FromString(TEXT("Second")));
	MenuBuilder.AddMenuEntry(Command);
	MenuBuilder.EndSection();

	const std::vector<StandIn::FMenuEntry> Entries = StandIn::MenuEntries(MenuBuilder.MakeWidget());
	std::vector<std::string> Shown;
	for (const StandIn::FMenuEntry& Entry : Entries)
	{
		const char* Kind = Entry.Kind == StandIn::FMenuEntry::EKind::Heading ? "heading " : Entry.Kind == StandIn::FMenuEntry::EKind::Separator ? "separator"
																																				: "entry ";
		Shown.push_back(Kind + StandIn::ToUtf8(Entry.Label.ToString()));
	}
	EXPECT_EQ(Shown, std::vector<std::string>({"heading First", "entry Entry", "separator", "heading Second", "entry Entry"}));
}

TEST_F(FSandboxTest, MenuEntryShowsItsOverridesOrElseTheCommandsTextsAndIcon)
{
	const TSharedPtr<FUICommandInfo> Command = MakeCommand(TEXT("Entry"), TEXT("Command label"));
	FMenuBuilder MenuBuilder(true, MakeShared<FUICommandList>());
	MenuBuilder.AddMenuEntry(Command);
	MenuBuilder.AddMenuEntry(Command, NAME_None, FText::FromString(TEXT("Other label")), FText::GetEmpty(), FSlateIcon(TEXT("NoSuchStyle"), TEXT("Icon")));

	const std::vector<StandIn::FMenuEntry> Entries = StandIn::MenuEntries(MenuBuilder.MakeWidget());
	ASSERT_EQ(Entries.size(), 2u);
	EXPECT_EQ(StandIn::ToUtf8(Entries[0].Label.ToString()), "Command label");
	EXPECT_EQ(StandIn::ToUtf8(Entries[0].ToolTip.ToString()), "Its tooltip");
	EXPECT_EQ(StandIn::ToUtf8(Entries[0].IconStyleName.ToString()), "Icons.Command");
	EXPECT_EQ(StandIn::ToUtf8(Entries[1].Label.ToString()), "Other label");
	// An override holding an empty text is set, so the entry shows no tooltip.
	EXPECT_EQ(StandIn::ToUtf8(Entries[1].ToolTip.ToString()), "");
	EXPECT_EQ(StandIn::ToUtf8(Entries[1].IconStyleSetName.ToString()), "NoSuchStyle");
	EXPECT_EQ(Entries[1].IconBrush, FStyleDefaults::GetNoBrush());
}

TEST_F(FSandboxTest, MenuEntryClosesItsMenuWhenTheMenuWasBuiltToCloseAfterASelection)
{
	const TSharedPtr<FUICommandInfo> Command = MakeCommand(TEXT("Entry"), TEXT("Entry"));
	FMenuBuilder Closing(true, MakeShared<FUICommandList>());
	Closing.AddMenuEntry(Command);
	FMenuBuilder StayingOpen(false, MakeShared<FUICommandList>());
	StayingOpen.AddMenuEntry(Command);

	EXPECT_TRUE(StandIn::MenuEntries(Closing.MakeWidget()).at(0).bClosesMenuAfterSelection);
	EXPECT_FALSE(StandIn::MenuEntries(StayingOpen.MakeWidget()).at(0).bClosesMenuAfterSelection);
}

TEST_F(FSandboxTest, ClickedMenuEntryRunsTheActionOfTheListItWasAddedWith)
{
	const TSharedPtr<FUICommandInfo> Command = MakeCommand(TEXT("Entry"), TEXT("Entry"));
	int Runs = 0;
	const TSharedRef<FUICommandList> Mapping = MakeShared<FUICommandList>();
	Mapping->MapAction(Command, FExecuteAction::CreateLambda([&Runs]() {
						   ++Runs;
					   }));
	FMenuBuilder Mapped(true, Mapping);
	Mapped.AddMenuEntry(Command);
	FMenuBuilder Unmapped(true, MakeShared<FUICommandList>());
	Unmapped.AddMenuEntry(Command);

	EXPECT_TRUE(StandIn::ClickMenuEntry(Mapped.MakeWidget(), TEXT("Entry")));
	EXPECT_TRUE(StandIn::ClickMenuEntry(Unmapped.MakeWidget(), TEXT("Entry")));
	EXPECT_FALSE(StandIn::ClickMenuEntry(Mapped.MakeWidget(), TEXT("entry")));
	EXPECT_EQ(Runs, 1);
}

namespace
{
	// A tool bar with one combo button "Combo" of this action, whose drop-down counts its openings.
	TSharedRef<SWidget> MakeToolBarWithCombo(const FUIAction& Action, int& Openings)
	{
		FToolBarBuilder ToolBar(MakeShared<FUICommandList>(), FMultiBoxCustomization::None);
		ToolBar.AddComboButton(Action, FOnGetContent::CreateLambda([&Openings]() {
								   ++Openings;
								   return FMenuBuilder(true, nullptr).MakeWidget();
							   }),
							   FText::FromString(TEXT("Combo")));
		return ToolBar.MakeWidget();
	}
}

TEST_F(FSandboxTest, ToolBarComboOpensItsDropDownWhereverClickedAndNeverRunsItsAction)
{
	int Runs = 0;
	int Openings = 0;
	const TSharedRef<SWidget> ToolBar = MakeToolBarWithCombo(FUIAction(FExecuteAction::CreateLambda([&Runs]() {
																 ++Runs;
															 })),
															 Openings);

	EXPECT_TRUE(StandIn::ClickMenuEntry(ToolBar, TEXT("Combo")));
	EXPECT_TRUE(StandIn::OpenComboDropDown(ToolBar, TEXT("Combo")).IsValid());
	EXPECT_EQ(Openings, 2);
	EXPECT_EQ(Runs, 0);
}

TEST_F(FSandboxTest, ToolBarComboThatCannotExecuteIsDisabledAndOpensNothing)
{
	int Openings = 0;
	const TSharedRef<SWidget> ToolBar = MakeToolBarWithCombo(FUIAction(FExecuteAction(), FCanExecuteAction::CreateLambda([]() {
																		   return false;
																	   })),
															 Openings);

	EXPECT_TRUE(StandIn::ClickMenuEntry(ToolBar, TEXT("Combo")));
	EXPECT_FALSE(StandIn::OpenComboDropDown(ToolBar, TEXT("Combo")).IsValid());
	EXPECT_EQ(Openings, 0);
}

TEST_F(FSandboxTest, DirtyPackagesAreListedByKindInTheWorldsOrder)
{
	StandIn::FWorld World = DefaultWorld();
	World.DirtyPackages = {{TEXT("/Game/Maps/Start"), true}, {TEXT("/Route/Data"), false}, {TEXT("/Route/Maps/Main"), true}};
	ResetWorld(World);

	TArray<UPackage*> Packages;
	FEditorFileUtils::GetDirtyContentPackages(Packages);
	FEditorFileUtils::GetDirtyWorldPackages(Packages);

	EXPECT_EQ(PackageNames(Packages), std::vector<std::string>({"/Route/Data", "/Game/Maps/Start", "/Route/Maps/Main"}));
}
