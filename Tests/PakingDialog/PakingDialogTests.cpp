#include "PakingDialogTest.h"
#include "SPakingDialog.h"
#include <algorithm>

namespace
{
	const char* const AlphaUgc = "C:/Work/Moravane/Plugins/Alpha/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/Alpha/Content/Alpha.ugc";
}

TEST_F(FPakingDialogTest, OriginalCheckboxesLogTheirEntryIndexFromZero)
{
	CookPlugin("Alpha");
	OpenDialog();
	for (int Click = 0; Click < 3; ++Click)
	{
		StandIn::ClickButton(AddPluginButton());
	}

	const size_t Mark = LogMark();
	StandIn::ClickCheckBox(OriginalCheckBox(2));
	StandIn::ClickCheckBox(OriginalCheckBox(0));
	StandIn::ClickCheckBox(OriginalCheckBox(0));
	EXPECT_EQ(LogTempLines(Mark), (std::vector<std::string>{"LogTemp: Plugin at index 2 marked as original", "LogTemp: Plugin at index 0 marked as original", "LogTemp: Plugin at index 0 unmarked as original"}));
	EXPECT_EQ(StandIn::Paint(OriginalCheckBox(2)).CheckState, ECheckBoxState::Checked);
	EXPECT_EQ(StandIn::Paint(OriginalCheckBox(0)).CheckState, ECheckBoxState::Unchecked);
}

TEST_F(FPakingDialogTest, ResetEmptiesTheListAndNumbersFromZeroAgain)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());
	StandIn::ClickButton(AddPluginButton());
	StandIn::ClickCheckBox(OriginalCheckBox(1));

	EXPECT_TRUE(StandIn::ClickButton(ResetButton()).IsEventHandled());
	EXPECT_TRUE(StandIn::ChildSlots(EntriesBox()).empty());

	StandIn::ClickButton(AddPluginButton());
	EXPECT_EQ(StandIn::ChildSlots(EntriesBox()).size(), 2u);
	EXPECT_EQ(StandIn::Paint(OriginalCheckBox(0)).CheckState, ECheckBoxState::Unchecked);
	const size_t Mark = LogMark();
	StandIn::ClickCheckBox(OriginalCheckBox(0));
	EXPECT_EQ(LogTempLines(Mark), (std::vector<std::string>{"LogTemp: Plugin at index 0 marked as original"}));
}

TEST_F(FPakingDialogTest, RowLeftBehindByResetStopsTheEditorWhenPainted)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());
	const TSharedRef<SWidget> Face = ComboFace(0);
	StandIn::ClickButton(ResetButton());

	EXPECT_DEATH(StandIn::Paint(Face), "IsValidIndex");
}

TEST_F(FPakingDialogTest, EditionCheckboxLogsItsStateAndSurvivesReset)
{
	CookPlugin("Alpha");
	OpenDialog();
	size_t Mark = LogMark();
	StandIn::ClickCheckBox(EditionCheckBox());
	StandIn::ClickCheckBox(EditionCheckBox());
	StandIn::ClickCheckBox(EditionCheckBox());
	EXPECT_EQ(LogTempLines(Mark), (std::vector<std::string>{"LogTemp: Calverly5 checkbox is checked", "LogTemp: Calverly5 checkbox is unchecked", "LogTemp: Calverly5 checkbox is checked"}));

	AddEntry("Alpha", true);
	StandIn::ClickButton(ResetButton());
	EXPECT_EQ(StandIn::Paint(EditionCheckBox()).CheckState, ECheckBoxState::Checked);

	// The run after Reset still writes the ".ugc" form that the ticked box asks for.
	AddEntry("Alpha", true);
	Mark = LogMark();
	StandIn::ClickButton(DistributeButton());
	const std::vector<std::string> Lines = LogTempLines(Mark);
	EXPECT_NE(std::find(Lines.begin(), Lines.end(), "LogTemp: UGC file Alpha.ugc is generated"), Lines.end());
}

TEST_F(FPakingDialogTest, DLCTextIsSplitAtCommasBeforeItIsTrimmed)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());

	size_t Mark = LogMark();
	StandIn::CommitText(DLCTextBox(0), TEXT("DLC_A, DLC_B,,DLC_C "));
	EXPECT_EQ(LogTempLines(Mark), (std::vector<std::string>{"LogTemp: DLC_A", "LogTemp: DLC_B", "LogTemp: DLC_C"}));

	Mark = LogMark();
	StandIn::CommitText(DLCTextBox(0), TEXT(" , X"), ETextCommit::OnUserMovedFocus);
	EXPECT_EQ(LogTempLines(Mark), (std::vector<std::string>{"LogTemp: ", "LogTemp: X"}));

	Mark = LogMark();
	StandIn::CommitText(DLCTextBox(0), TEXT(""), ETextCommit::OnCleared);
	EXPECT_TRUE(LogTempLines(Mark).empty());
}

TEST_F(FPakingDialogTest, RequiredDLCsReachTheDescriptorOfEachRun)
{
	CookPlugin("Alpha");
	CookPlugin("Beta");
	OpenDialog();
	StandIn::ClickCheckBox(EditionCheckBox());
	// Beta comes last so that the clean-up takes its descriptor and leaves Alpha's to read.
	AddEntry("Alpha", true, "DLC_A, DLC_B,,DLC_C ");
	AddEntry("Beta", true);

	StandIn::ClickButton(DistributeButton());
	EXPECT_NE(ReadFile(AlphaUgc).find("\"DLCDependencies\": [\"DLC_A\", \"DLC_B\", \"DLC_C\"],"), std::string::npos);

	// The entries stay after a run, so the same list goes again with the new text.
	StandIn::CommitText(DLCTextBox(0), TEXT(" , X"));
	StandIn::ClickButton(DistributeButton());
	EXPECT_NE(ReadFile(AlphaUgc).find("\"DLCDependencies\": [\"\", \"X\"],"), std::string::npos);
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-Alpha.pak", "Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-Alpha.pak"}));
}

TEST_F(FPakingDialogTest, DistributeHandsOnlyTheEntriesWithAChoiceInListOrder)
{
	CookPlugin("Alpha");
	CookPlugin("Beta");
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());
	AddEntry("Beta");
	AddEntry("Alpha", true);

	const size_t Mark = LogMark();
	EXPECT_TRUE(StandIn::ClickButton(DistributeButton()).IsEventHandled());
	std::vector<std::string> Generated;
	for (const std::string& Line : LogTempLines(Mark))
	{
		if (Line.find("generated") != std::string::npos)
		{
			Generated.push_back(Line);
		}
	}
	EXPECT_EQ(Generated, (std::vector<std::string>{"LogTemp: File AssetRegistry for not your original plugin is generated", "LogTemp: DLC file Alpha.dlc is generated", "LogTemp: File Alpha.uplugin is generated", "LogTemp: File Alpha.upluginmanifest is generated"}));
	// The first entry handed over names the pak.
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-Beta.pak"}));
}

TEST_F(FPakingDialogTest, DistributeRunsEvenWhenNoEntryHasAChoice)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());
	StandIn::ClickButton(DistributeButton());
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-.pak"}));
}

TEST_F(FPakingDialogTest, EmptyListsAreReportedInsteadOfActedOn)
{
	OpenDialog();
	const size_t Mark = LogMark();
	StandIn::ClickButton(AddPluginButton());
	StandIn::ClickButton(AddPluginButton());
	EXPECT_TRUE(StandIn::ChildSlots(EntriesBox()).empty());
	EXPECT_TRUE(StandIn::ClickButton(DistributeButton()).IsEventHandled());

	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"No cooked plugins available.", "No cooked plugins available.", "No plugins have been added. Please add a plugin before distributing."}));
	const std::vector<const StandIn::FMessageBoxRecord*> Boxes = StandIn::JournalRecords<StandIn::FMessageBoxRecord>();
	EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetNamespace(Boxes[0]->Message).Get(FString())), "SPakingDialog");
	EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetKey(Boxes[0]->Message).Get(FString())), "NoCookedPluginsMessage");
	EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetKey(Boxes[2]->Message).Get(FString())), "NoPluginsAddedMessage");
	for (const StandIn::FMessageBoxRecord* Box : Boxes)
	{
		EXPECT_EQ(Box->Type, EAppMsgType::Ok);
	}
	EXPECT_TRUE(LogTempLines(Mark).empty());
}

TEST_F(FPakingDialogTest, WithoutAPipelineDistributeAndResetDoNothing)
{
	Dialog = SNew(SPakingDialog).CookedPlugins({TEXT("Alpha")});
	AddEntry("Alpha", true);

	const size_t Mark = LogMark();
	EXPECT_TRUE(StandIn::ClickButton(DistributeButton()).IsEventHandled());
	EXPECT_TRUE(StandIn::ClickButton(ResetButton()).IsEventHandled());
	EXPECT_TRUE(MessageBoxTexts().empty());
	EXPECT_TRUE(LogTempLines(Mark).empty());
	EXPECT_EQ(StandIn::ChildSlots(EntriesBox()).size(), 2u);
}

TEST_F(FPakingDialogTest, UndeterminedOriginalBoxUnmarksAMarkedEntry)
{
	CookPlugin("Alpha");
	OpenDialog();
	AddEntry("Alpha", true);

	size_t Mark = LogMark();
	StandIn::ChangeCheckState(OriginalCheckBox(0), ECheckBoxState::Undetermined);
	EXPECT_EQ(LogTempLines(Mark), (std::vector<std::string>{"LogTemp: Plugin at index 0 unmarked as original"}));

	Mark = LogMark();
	StandIn::ClickButton(DistributeButton());
	const std::vector<std::string> Lines = LogTempLines(Mark);
	EXPECT_NE(std::find(Lines.begin(), Lines.end(), "LogTemp: File AssetRegistry for not your original plugin is generated"), Lines.end());
}

TEST_F(FPakingDialogTest, UndeterminedOriginalBoxLeavesAnUnmarkedEntryUntouched)
{
	CookPlugin("Alpha");
	OpenDialog();
	AddEntry("Alpha");

	const size_t Mark = LogMark();
	StandIn::ChangeCheckState(OriginalCheckBox(0), ECheckBoxState::Undetermined);
	EXPECT_TRUE(LogTempLines(Mark).empty());
}

TEST_F(FPakingDialogTest, UndeterminedEditionBoxMakesTheRunAPlainDLC)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickCheckBox(EditionCheckBox());
	AddEntry("Alpha", true);

	size_t Mark = LogMark();
	StandIn::ChangeCheckState(EditionCheckBox(), ECheckBoxState::Undetermined);
	EXPECT_EQ(LogTempLines(Mark), (std::vector<std::string>{"LogTemp: Calverly5 checkbox is unchecked"}));

	Mark = LogMark();
	StandIn::ClickButton(DistributeButton());
	const std::vector<std::string> Lines = LogTempLines(Mark);
	EXPECT_NE(std::find(Lines.begin(), Lines.end(), "LogTemp: DLC file Alpha.dlc is generated"), Lines.end());
	EXPECT_EQ(std::find(Lines.begin(), Lines.end(), "LogTemp: UGC file Alpha.ugc is generated"), Lines.end());
}

TEST_F(FPakingDialogTest, NullSelectionInAComboKeepsTheEntrysChoice)
{
	CookPlugin("Alpha");
	CookPlugin("Beta");
	OpenDialog();
	AddEntry("Beta");

	const size_t Mark = LogMark();
	StandIn::ClearComboSelection(Combo(0));
	EXPECT_TRUE(LogTempLines(Mark).empty());
	EXPECT_EQ(Shown(ComboFace(0)), "Beta");

	StandIn::ClickButton(DistributeButton());
	EXPECT_EQ(MessageBoxTexts(), (std::vector<std::string>{"Your pak is saved here: C:/Work/Moravane-WindowsNoEditor-Beta.pak"}));
}
