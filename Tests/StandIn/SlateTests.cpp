#include "Framework/Docking/TabManager.h"
#include "SandboxTest.h"
#include "StandIn/WindowMenu.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"

// The engine behaviour that the stand-in's widgets reproduce.

namespace
{
	using FSelections = std::vector<std::pair<std::string, ESelectInfo::Type>>;

	// A combo box over the options whose rows show each option's text; it notes every selection it reports,
	// a cleared one as "null".
	TSharedRef<SWidget> MakeCombo(TArray<TSharedPtr<FString>>& Options, FSelections& Selections)
	{
		return SNew(SComboBox<TSharedPtr<FString>>).OptionsSource(&Options).OnGenerateWidget_Lambda([](TSharedPtr<FString> Option) -> TSharedRef<SWidget> {
																			   return SNew(SEditableText).Text(FText::FromString(*Option));
																		   })
			.OnSelectionChanged_Lambda([&Selections](TSharedPtr<FString> Option, ESelectInfo::Type Info) {
				Selections.emplace_back(Option.IsValid() ? StandIn::ToUtf8(*Option) : "null", Info);
			});
	}
}

TEST_F(FSandboxTest, UnboundCheckBoxTogglesItsOwnStateReportsEachChangeAndUnchecksFromUndetermined)
{
	std::vector<ECheckBoxState> Events;
	const TSharedRef<SWidget> Free = SNew(SCheckBox).OnCheckStateChanged_Lambda([&Events](ECheckBoxState State) {
		Events.push_back(State);
	});

	StandIn::ClickCheckBox(Free);
	const ECheckBoxState AfterOneClick = StandIn::Paint(Free).CheckState;
	StandIn::ClickCheckBox(Free);
	const ECheckBoxState AfterTwoClicks = StandIn::Paint(Free).CheckState;
	StandIn::ChangeCheckState(Free, ECheckBoxState::Undetermined);
	const ECheckBoxState Undetermined = StandIn::Paint(Free).CheckState;
	StandIn::ClickCheckBox(Free);

	EXPECT_EQ(AfterOneClick, ECheckBoxState::Checked);
	EXPECT_EQ(AfterTwoClicks, ECheckBoxState::Unchecked);
	EXPECT_EQ(Undetermined, ECheckBoxState::Undetermined);
	EXPECT_EQ(StandIn::Paint(Free).CheckState, ECheckBoxState::Unchecked);
	EXPECT_EQ(Events, (std::vector<ECheckBoxState>{ECheckBoxState::Checked, ECheckBoxState::Unchecked, ECheckBoxState::Undetermined, ECheckBoxState::Unchecked}));
}

TEST_F(FSandboxTest, BoundCheckBoxShowsItsBindingThoughAClickReportsTheToggle)
{
	std::vector<ECheckBoxState> Events;
	const TSharedRef<SWidget> Bound = SNew(SCheckBox).IsChecked_Lambda([]() {
														 return ECheckBoxState::Checked;
													 })
										  .OnCheckStateChanged_Lambda([&Events](ECheckBoxState State) {
											  Events.push_back(State);
										  });

	StandIn::ClickCheckBox(Bound);

	EXPECT_EQ(StandIn::Paint(Bound).CheckState, ECheckBoxState::Checked);
	EXPECT_EQ(Events, (std::vector<ECheckBoxState>{ECheckBoxState::Unchecked}));
}

TEST_F(FSandboxTest, ComboBoxListsItsOptionsAsTheyAreWhenItOpens)
{
	TArray<TSharedPtr<FString>> Options = {MakeShareable(new FString(TEXT("One")))};
	FSelections Selections;
	const TSharedRef<SWidget> Combo = MakeCombo(Options, Selections);
	Options.Add(MakeShareable(new FString(TEXT("Two"))));

	std::vector<std::string> Shown;
	for (const TSharedRef<SWidget>& Row : StandIn::OpenComboBox(Combo))
	{
		Shown.push_back(StandIn::ToUtf8(StandIn::ShownText(Row).ToString()));
	}

	EXPECT_EQ(Shown, (std::vector<std::string>{"One", "Two"}));
}

TEST_F(FSandboxTest, ComboBoxReportsANewChoiceAsAMouseClickAndTheSameChoiceNotAtAll)
{
	TArray<TSharedPtr<FString>> Options = {MakeShareable(new FString(TEXT("One"))), MakeShareable(new FString(TEXT("Two")))};
	FSelections Selections;
	const TSharedRef<SWidget> Combo = MakeCombo(Options, Selections);

	EXPECT_TRUE(StandIn::ChooseComboOption(Combo, TEXT("Two")));
	EXPECT_TRUE(StandIn::ChooseComboOption(Combo, 1));
	EXPECT_TRUE(StandIn::ChooseComboOption(Combo, 0));
	EXPECT_FALSE(StandIn::ChooseComboOption(Combo, TEXT("two")));
	EXPECT_FALSE(StandIn::ChooseComboOption(Combo, 2));

	EXPECT_EQ(Selections, (FSelections{{"Two", ESelectInfo::OnMouseClick}, {"One", ESelectInfo::OnMouseClick}}));
}

TEST_F(FSandboxTest, ClearedComboSelectionIsReportedAsANullOptionOnlyWhenThereWasOne)
{
	TArray<TSharedPtr<FString>> Options = {MakeShareable(new FString(TEXT("One")))};
	FSelections Selections;
	const TSharedRef<SWidget> Combo = MakeCombo(Options, Selections);

	StandIn::ClearComboSelection(Combo);
	EXPECT_TRUE(StandIn::ChooseComboOption(Combo, 0));
	StandIn::ClearComboSelection(Combo);
	StandIn::ClearComboSelection(Combo);
	// Once cleared, the same option counts as a new choice.
	EXPECT_TRUE(StandIn::ChooseComboOption(Combo, 0));
	EXPECT_EQ(Selections, (FSelections{{"One", ESelectInfo::OnMouseClick}, {"null", ESelectInfo::Direct}, {"One", ESelectInfo::OnMouseClick}}));
}

TEST_F(FSandboxTest, BoxSlotsStretchByDefaultKeepTheirPaddingAndClearAtOnce)
{
	TSharedPtr<SVerticalBox> Exposed;
	const TSharedRef<SWidget> Box = SAssignNew(Exposed, SVerticalBox) + SVerticalBox::Slot().Padding(3)[SNew(SButton)];
	Exposed->AddSlot()[SNew(SHorizontalBox) + SHorizontalBox::Slot().FillWidth(0.25f)[SNew(SCheckBox)]];

	const std::vector<StandIn::FChildSlot> Slots = StandIn::ChildSlots(Box);
	Exposed->ClearChildren();

	ASSERT_EQ(Slots.size(), 2u);
	EXPECT_EQ(StandIn::WidgetType(Slots[0].Widget), "SButton");
	EXPECT_EQ(Slots[0].Padding, FMargin(3));
	EXPECT_EQ(Slots[1].Padding, FMargin(0));
	EXPECT_FLOAT_EQ(Slots[1].Fill, 1.0f);
	EXPECT_FLOAT_EQ(StandIn::ChildSlots(Slots[1].Widget).at(0).Fill, 0.25f);
	EXPECT_EQ(StandIn::ChildSlots(Box).size(), 0u);
}

TEST_F(FSandboxTest, BoundTextIsReadAgainAtEachPaint)
{
	int32 Paints = 0;
	const TSharedRef<SWidget> Bound = SNew(SEditableText).Text_Lambda([&Paints]() {
		return FText::FromString(FString::Printf(TEXT("Paint %d"), ++Paints));
	});

	const std::string First = StandIn::ToUtf8(StandIn::Paint(Bound).Text.ToString());
	const std::string Second = StandIn::ToUtf8(StandIn::Paint(Bound).Text.ToString());

	EXPECT_EQ(First, "Paint 1");
	EXPECT_EQ(Second, "Paint 2");
}

TEST_F(FSandboxTest, ReadOnlyTextRefusesTyping)
{
	const TSharedRef<SWidget> ReadOnly = SNew(SEditableText).Text(FText::FromString(TEXT("Label"))).IsReadOnly(true);

	EXPECT_FALSE(StandIn::CommitText(ReadOnly, TEXT("Typed")));

	EXPECT_EQ(StandIn::ToUtf8(StandIn::ShownText(ReadOnly).ToString()), "Label");
}

TEST_F(FSandboxTest, TextBoxShowsWhatWasTypedAndReportsTheCommitWithItsKind)
{
	std::vector<std::pair<std::string, ETextCommit::Type>> Commits;
	const TSharedRef<SWidget> TextBox = SNew(SEditableTextBox).OnTextCommitted_Lambda([&Commits](const FText& Text, ETextCommit::Type Type) {
		Commits.emplace_back(StandIn::ToUtf8(Text.ToString()), Type);
	});

	EXPECT_TRUE(StandIn::CommitText(TextBox, TEXT("Typed"), ETextCommit::OnUserMovedFocus));

	EXPECT_EQ(StandIn::ToUtf8(StandIn::ShownText(TextBox).ToString()), "Typed");
	EXPECT_EQ(Commits, (std::vector<std::pair<std::string, ETextCommit::Type>>{{"Typed", ETextCommit::OnUserMovedFocus}}));
}

TEST_F(FSandboxTest, CoreStyleFindsButtonStylesWhateverTheCaseFallsBackToTheDefaultAndStylesAPlainButton)
{
	const ISlateStyle& Style = FCoreStyle::Get();
	EXPECT_NE(&Style.GetWidgetStyle<FButtonStyle>("NoBorder"), &Style.GetWidgetStyle<FButtonStyle>("Button"));
	EXPECT_EQ(&Style.GetWidgetStyle<FButtonStyle>("NoBorder"), &Style.GetWidgetStyle<FButtonStyle>("noborder"));
	EXPECT_EQ(&Style.GetWidgetStyle<FButtonStyle>("NoSuchStyle"), &FButtonStyle::GetDefault());
	EXPECT_EQ(StandIn::Paint(SNew(SButton)).ButtonStyle, &Style.GetWidgetStyle<FButtonStyle>("Button"));
}

TEST_F(FSandboxTest, WindowMenuListsNomadTabsUnlessHiddenAndGreysOutDisabledOnes)
{
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(TEXT("Listed"), FOnSpawnTab()).SetDisplayName(FText::FromString(TEXT("Listed")));
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(TEXT("Hidden"), FOnSpawnTab()).SetDisplayName(FText::FromString(TEXT("Hidden"))).SetMenuType(ETabSpawnerMenuType::Hidden);
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(TEXT("Greyed"), FOnSpawnTab()).SetDisplayName(FText::FromString(TEXT("Greyed"))).SetMenuType(ETabSpawnerMenuType::Disabled);

	const std::vector<StandIn::FWindowMenuTab> Tabs = StandIn::WindowMenuTabs();

	ASSERT_EQ(Tabs.size(), 2u);
	EXPECT_EQ(StandIn::ToUtf8(Tabs[0].DisplayName.ToString()), "Listed");
	EXPECT_TRUE(Tabs[0].bIsEnabled);
	EXPECT_EQ(StandIn::ToUtf8(Tabs[1].DisplayName.ToString()), "Greyed");
	EXPECT_FALSE(Tabs[1].bIsEnabled);
}
