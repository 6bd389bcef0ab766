#include "PakingDialogTest.h"

using FStrings = std::vector<std::string>;

// "Add Plugin"

TEST_F(FPakingDialogTest, AddPluginWithoutCookedPluginsSaysSoEachTimeAndAddsNoRow)
{
	Translate("SPakingDialog", "NoCookedPluginsMessage", "Keine gekochten Plugins.");
	OpenDialog();

	const size_t Mark = JournalMark();
	EXPECT_TRUE(StandIn::ClickButton(AddPluginButton()).IsEventHandled());
	StandIn::ClickButton(AddPluginButton());

	EXPECT_EQ(StandIn::JournalLines(Mark), (FStrings{"Message: Keine gekochten Plugins.", "Message: Keine gekochten Plugins."}));
	EXPECT_EQ(MessageBoxTypes(), (std::vector<EAppMsgType::Type>{EAppMsgType::Ok, EAppMsgType::Ok}));
	EXPECT_EQ(EntryCount(), 0u);
}

TEST_F(FPakingDialogTest, AnotherAddPluginKeepsTheChoiceOfEarlierRows)
{
	CookPlugin("Alpha");
	CookPlugin("Beta");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Beta"));
	StandIn::ClickButton(AddPluginButton());

	EXPECT_EQ(Shown(ComboFace(0)), "Beta");
	EXPECT_EQ(OptionTexts(Combo(0)), (FStrings{"Alpha", "Beta"}));
	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();
	ASSERT_TRUE(Run.has_value());
	EXPECT_EQ(Run->Plugins, (std::vector<FHandedPlugin>{{"Beta", false, {}}}));
}

// A row's combo box

TEST_F(FPakingDialogTest, ComboFaceShowsTheChoiceOfItsOwnRowOnly)
{
	CookPlugin("Alpha");
	CookPlugin("Beta");
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());
	StandIn::ClickButton(AddPluginButton());
	const TSharedRef<SWidget> Face = ComboFace(1);
	EXPECT_EQ(Shown(Face), "Select a cooked plugin");

	ASSERT_TRUE(StandIn::ChooseComboOption(Combo(1), TEXT("Beta")));

	EXPECT_EQ(Shown(Face), "Beta");
	EXPECT_EQ(Shown(ComboFace(0)), "Select a cooked plugin");
}

TEST_F(FPakingDialogTest, ClearedComboSelectionKeepsTheRowsChoice)
{
	CookPlugin("Alpha");
	CookPlugin("Beta");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Beta"));

	const size_t Mark = JournalMark();
	StandIn::ClearComboSelection(Combo(0));

	EXPECT_EQ(StandIn::JournalLines(Mark), FStrings{});
	EXPECT_EQ(Shown(ComboFace(0)), "Beta");
	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();
	ASSERT_TRUE(Run.has_value());
	EXPECT_EQ(Run->Plugins, (std::vector<FHandedPlugin>{{"Beta", false, {}}}));
}

// "Original Plugin"

TEST_F(FPakingDialogTest, OriginalBoxesLogTheirRowIndexFromZero)
{
	CookPlugin("Alpha");
	OpenDialog();
	for (int Click = 0; Click < 3; ++Click)
	{
		StandIn::ClickButton(AddPluginButton());
	}

	const size_t Mark = JournalMark();
	StandIn::ClickCheckBox(OriginalCheckBox(2));
	StandIn::ClickCheckBox(OriginalCheckBox(0));
	StandIn::ClickCheckBox(OriginalCheckBox(0));

	EXPECT_EQ(StandIn::JournalLines(Mark), (FStrings{"LogTemp: Plugin at index 2 marked as original", "LogTemp: Plugin at index 0 marked as original", "LogTemp: Plugin at index 0 unmarked as original"}));
	EXPECT_EQ(StandIn::Paint(OriginalCheckBox(2)).CheckState, ECheckBoxState::Checked);
	EXPECT_EQ(StandIn::Paint(OriginalCheckBox(0)).CheckState, ECheckBoxState::Unchecked);
}

TEST_F(FPakingDialogTest, AMarkedRowLogsACheckAgainAndIsUnmarkedByAnUndeterminedBox)
{
	CookPlugin("Alpha");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Alpha", true));

	const size_t Mark = JournalMark();
	StandIn::ChangeCheckState(OriginalCheckBox(0), ECheckBoxState::Checked);
	StandIn::ChangeCheckState(OriginalCheckBox(0), ECheckBoxState::Undetermined);

	EXPECT_EQ(StandIn::JournalLines(Mark), (FStrings{"LogTemp: Plugin at index 0 marked as original", "LogTemp: Plugin at index 0 unmarked as original"}));
	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();
	ASSERT_TRUE(Run.has_value());
	EXPECT_EQ(Run->Plugins, (std::vector<FHandedPlugin>{{"Alpha", false, {}}}));
}

TEST_F(FPakingDialogTest, ClearingTheBoxOfAnUnmarkedRowSaysNothing)
{
	CookPlugin("Alpha");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Alpha"));

	const size_t Mark = JournalMark();
	StandIn::ChangeCheckState(OriginalCheckBox(0), ECheckBoxState::Undetermined);
	StandIn::ChangeCheckState(OriginalCheckBox(0), ECheckBoxState::Unchecked);

	EXPECT_EQ(StandIn::JournalLines(Mark), FStrings{});
}

// A row's DLC text

TEST_F(FPakingDialogTest, DLCTextIsSplitAtCommasAndEachNameTrimmed)
{
	CookPlugin("Alpha");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Alpha"));

	const size_t Mark = JournalMark();
	StandIn::CommitText(DLCTextBox(0), TEXT("DLC_A, DLC_B,,DLC_C "));

	EXPECT_EQ(StandIn::JournalLines(Mark), (FStrings{"LogTemp: DLC_A", "LogTemp: DLC_B", "LogTemp: DLC_C"}));
	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();
	ASSERT_TRUE(Run.has_value());
	EXPECT_EQ(Run->Plugins, (std::vector<FHandedPlugin>{{"Alpha", false, {"DLC_A", "DLC_B", "DLC_C"}}}));
}

TEST_F(FPakingDialogTest, APieceOfBlanksInTheDLCTextStaysAsAnEmptyName)
{
	CookPlugin("Alpha");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Alpha"));

	const size_t Mark = JournalMark();
	StandIn::CommitText(DLCTextBox(0), TEXT(" , X"), ETextCommit::OnUserMovedFocus);

	EXPECT_EQ(StandIn::JournalLines(Mark), (FStrings{"LogTemp: ", "LogTemp: X"}));
	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();
	ASSERT_TRUE(Run.has_value());
	EXPECT_EQ(Run->Plugins, (std::vector<FHandedPlugin>{{"Alpha", false, {"", "X"}}}));
}

TEST_F(FPakingDialogTest, ClearedDLCTextLeavesTheRowWithoutDLCs)
{
	CookPlugin("Alpha");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Alpha", false, "DLC_A"));

	const size_t Mark = JournalMark();
	StandIn::CommitText(DLCTextBox(0), TEXT(""), ETextCommit::OnCleared);

	EXPECT_EQ(StandIn::JournalLines(Mark), FStrings{});
	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();
	ASSERT_TRUE(Run.has_value());
	EXPECT_EQ(Run->Plugins, (std::vector<FHandedPlugin>{{"Alpha", false, {}}}));
}

// "Calverly5 Plugin"

TEST_F(FPakingDialogTest, EditionCheckboxLogsEachChange)
{
	OpenDialog();

	const size_t Mark = JournalMark();
	StandIn::ClickCheckBox(EditionCheckBox());
	StandIn::ClickCheckBox(EditionCheckBox());
	StandIn::ClickCheckBox(EditionCheckBox());

	EXPECT_EQ(StandIn::JournalLines(Mark), (FStrings{"LogTemp: Calverly5 checkbox is checked", "LogTemp: Calverly5 checkbox is unchecked", "LogTemp: Calverly5 checkbox is checked"}));
}

TEST_F(FPakingDialogTest, UndeterminedEditionBoxMakesThePlainDLCRun)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickCheckBox(EditionCheckBox());
	ASSERT_TRUE(AddEntry("Alpha", true));

	const size_t Mark = JournalMark();
	StandIn::ChangeCheckState(EditionCheckBox(), ECheckBoxState::Undetermined);

	EXPECT_EQ(StandIn::JournalLines(Mark), (FStrings{"LogTemp: Calverly5 checkbox is unchecked"}));
	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();
	ASSERT_TRUE(Run.has_value());
	EXPECT_FALSE(Run->bCalverly5Plugin);
}

// "Distribute"

TEST_F(FPakingDialogTest, DistributeHandsEveryRowWithAChoiceInRowOrderInPlaceOfWhatThePipelineHeld)
{
	CookPlugin("Alpha");
	CookPlugin("Beta");
	OpenDialog();
	FPakingPluginEntry Stale;
	Stale.PluginName = TEXT("Stale");
	Paking->Plugins.Add(Stale);
	StandIn::ClickCheckBox(EditionCheckBox());
	ASSERT_TRUE(AddEntry(""));
	ASSERT_TRUE(AddEntry("Beta", true, "DLC_B"));
	ASSERT_TRUE(AddEntry("", true, "DLC_X"));
	ASSERT_TRUE(AddEntry("Alpha", false, "DLC_A,DLC_C"));

	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();

	ASSERT_TRUE(Run.has_value());
	EXPECT_EQ(Run->Plugins, (std::vector<FHandedPlugin>{{"Beta", true, {"DLC_B"}}, {"Alpha", false, {"DLC_A", "DLC_C"}}}));
	EXPECT_TRUE(Run->bCalverly5Plugin);
}

TEST_F(FPakingDialogTest, DistributeRunsThePipelineEvenWhenNoRowHasAChoice)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());

	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();

	ASSERT_TRUE(Run.has_value());
	EXPECT_EQ(Run->Plugins, std::vector<FHandedPlugin>{});
	EXPECT_EQ(MessageBoxTexts(), (FStrings{"Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-.pak"}));
}

TEST_F(FPakingDialogTest, TheSameRowsCanBeDistributedAgain)
{
	CookPlugin("Alpha");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Alpha", true, "DLC_A"));
	DistributeAndSeeWhatThePipelineGot();

	const std::optional<FHandedRun> Again = DistributeAndSeeWhatThePipelineGot();

	ASSERT_TRUE(Again.has_value());
	EXPECT_EQ(Again->Plugins, (std::vector<FHandedPlugin>{{"Alpha", true, {"DLC_A"}}}));
}

TEST_F(FPakingDialogTest, DistributeWithoutRowsAsksForAPluginAndRunsNothing)
{
	Translate("SPakingDialog", "NoPluginsAddedMessage", "Erst ein Plugin hinzufügen.");
	CookPlugin("Alpha");
	OpenDialog();

	const size_t Mark = JournalMark();
	EXPECT_TRUE(StandIn::ClickButton(DistributeButton()).IsEventHandled());

	EXPECT_EQ(StandIn::JournalLines(Mark), (FStrings{"Message: Erst ein Plugin hinzufügen."}));
	EXPECT_EQ(MessageBoxTypes(), (std::vector<EAppMsgType::Type>{EAppMsgType::Ok}));
}

TEST_F(FPakingDialogTest, WithoutAPipelineDistributeStillAsksForAPluginButNeitherItNorResetDoesMore)
{
	BuildDialogWithoutPipeline({"Alpha"});
	StandIn::ClickButton(DistributeButton());
	EXPECT_EQ(StandIn::JournalLines(), (FStrings{"Message: No plugins have been added. Please add a plugin before distributing."}));
	ASSERT_TRUE(AddEntry("Alpha", true));

	const size_t Mark = JournalMark();
	EXPECT_TRUE(StandIn::ClickButton(DistributeButton()).IsEventHandled());
	EXPECT_TRUE(StandIn::ClickButton(ResetButton()).IsEventHandled());

	EXPECT_EQ(StandIn::JournalLines(Mark), FStrings{});
	EXPECT_EQ(EntryCount(), 1u);
	EXPECT_EQ(Shown(ComboFace(0)), "Alpha");
}

// "Reset"

TEST_F(FPakingDialogTest, ResetEmptiesTheRowsAndThePipelinesListAndNumbersFromZeroAgain)
{
	CookPlugin("Alpha");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Alpha"));
	ASSERT_TRUE(AddEntry("Alpha", true));
	FPakingPluginEntry Stale;
	Stale.PluginName = TEXT("Stale");
	Paking->Plugins.Add(Stale);

	EXPECT_TRUE(StandIn::ClickButton(ResetButton()).IsEventHandled());
	EXPECT_EQ(EntryCount(), 0u);
	EXPECT_EQ(Paking->Plugins.Num(), 0);

	StandIn::ClickButton(AddPluginButton());
	const size_t Mark = JournalMark();
	StandIn::ClickCheckBox(OriginalCheckBox(0));
	EXPECT_EQ(StandIn::JournalLines(Mark), (FStrings{"LogTemp: Plugin at index 0 marked as original"}));
	EXPECT_EQ(Shown(ComboFace(0)), "Select a cooked plugin");
}

TEST_F(FPakingDialogTest, ResetKeepsTheEditionTickForTheNextRun)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickCheckBox(EditionCheckBox());
	ASSERT_TRUE(AddEntry("Alpha", true));

	StandIn::ClickButton(ResetButton());
	ASSERT_TRUE(AddEntry("Alpha", true));
	const std::optional<FHandedRun> Run = DistributeAndSeeWhatThePipelineGot();

	EXPECT_EQ(StandIn::Paint(EditionCheckBox()).CheckState, ECheckBoxState::Checked);
	ASSERT_TRUE(Run.has_value());
	EXPECT_TRUE(Run->bCalverly5Plugin);
}

// Row widgets that outlive their row are a programming error the engine's bounds check stops.
TEST_F(FPakingDialogTest, EveryHandlerOfARowKeptPastResetStopsTheEditor)
{
	CookPlugin("Alpha");
	OpenDialog();
	ASSERT_TRUE(AddEntry("Alpha"));
	const TSharedRef<SWidget> OldCombo = Combo(0);
	const TSharedRef<SWidget> OldFace = ComboFace(0);
	const TSharedRef<SWidget> OldCheckBox = OriginalCheckBox(0);
	const TSharedRef<SWidget> OldTextBox = DLCTextBox(0);
	StandIn::ClickButton(ResetButton());

	EXPECT_DEATH(StandIn::Paint(OldFace), "IsValidIndex");
	EXPECT_DEATH(StandIn::OpenComboBox(OldCombo), "IsValidIndex");
	EXPECT_DEATH(StandIn::ClearComboSelection(OldCombo), "IsValidIndex");
	EXPECT_DEATH(StandIn::ClickCheckBox(OldCheckBox), "IsValidIndex");
	EXPECT_DEATH(StandIn::CommitText(OldTextBox, TEXT("DLC_A")), "IsValidIndex");
}
