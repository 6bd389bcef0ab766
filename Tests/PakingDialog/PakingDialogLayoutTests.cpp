#include "PakingDialogTest.h"
#include "Styling/CoreStyle.h"
#include <algorithm>

namespace
{
	const FButtonStyle* NoBorderStyle()
	{
		return &FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder");
	}

	std::vector<std::string> ChildTypes(const TSharedRef<SWidget>& Widget)
	{
		std::vector<std::string> Types;
		for (const StandIn::FChildSlot& Slot : StandIn::ChildSlots(Widget))
		{
			Types.push_back(StandIn::WidgetType(Slot.Widget));
		}
		return Types;
	}

	// Every caption inside an entry block: bold 10, white, read-only.
	void ExpectEntryCaption(const TSharedRef<SWidget>& Widget, const std::string& Caption)
	{
		EXPECT_EQ(StandIn::WidgetType(Widget), "SEditableText");
		const StandIn::FPaintedWidget Painted = StandIn::Paint(Widget);
		EXPECT_EQ(StandIn::ToUtf8(Painted.Text.ToString()), Caption);
		ASSERT_TRUE(Painted.Font.has_value());
		EXPECT_EQ(Painted.Font->TypefaceFontName, FName("Bold"));
		EXPECT_EQ(Painted.Font->Size, 10);
		ASSERT_TRUE(Painted.ColorAndOpacity.has_value());
		EXPECT_EQ(Painted.ColorAndOpacity->GetSpecifiedColor(), FLinearColor::White);
		EXPECT_TRUE(Painted.bIsReadOnly);
	}
} // namespace

TEST_F(FPakingDialogTest, EachUseOpensItsOwnNonModalWindowOnAFreshDiscovery)
{
	CookPlugin("Alpha");
	const TSharedRef<SWidget> First = OpenDialog();
	const TSharedRef<SWidget> Second = OpenDialog();

	ASSERT_EQ(StandIn::JournalRecords<StandIn::FWindowRecord>().size(), 2u);
	for (const StandIn::FWindowRecord* WindowRecord : StandIn::JournalRecords<StandIn::FWindowRecord>())
	{
		const StandIn::FWindowRecord& Window = *WindowRecord;
		EXPECT_EQ(Utf8(Window.Title), "Paking Dialog");
		EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetNamespace(Window.Title).Get(FString())), "UGCPaking");
		EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetKey(Window.Title).Get(FString())), "PakingDialogTitle");
		EXPECT_EQ(Window.ClientSize, FVector2D(400, 400));
		EXPECT_FALSE(Window.bSupportsMaximize);
		EXPECT_FALSE(Window.bSupportsMinimize);
		EXPECT_TRUE(Window.bShowImmediately);
		EXPECT_EQ(StandIn::WidgetType(Window.Content), "SPakingDialog");
	}
	EXPECT_NE(First, Second);
	const std::vector<std::string> Lines = LogTempLines();
	EXPECT_EQ(std::count(Lines.begin(), Lines.end(), "LogTemp: Found plugin folder: Alpha"), 2);
}

TEST_F(FPakingDialogTest, FrameIsABorderedScrollingGridOfFiveSlots)
{
	OpenDialog();
	const std::vector<StandIn::FChildSlot> BorderSlots = StandIn::ChildSlots(Child(Dialog.ToSharedRef(), 0));
	EXPECT_EQ(StandIn::WidgetType(Child(Dialog.ToSharedRef(), 0)), "SBorder");
	ASSERT_EQ(BorderSlots.size(), 1u);
	EXPECT_EQ(BorderSlots[0].Padding, FMargin(15));
	EXPECT_EQ(StandIn::WidgetType(BorderSlots[0].Widget), "SScrollBox");
	EXPECT_EQ(ChildTypes(BorderSlots[0].Widget), (std::vector<std::string>{"SGridPanel"}));

	struct FExpectedCell
	{
		int32 Column;
		int32 Row;
		float Padding;
		std::string Type;
	};
	const std::vector<FExpectedCell> Expected = {{0, 0, 10, "SButton"}, {0, 1, 0, "SVerticalBox"}, {0, 9, 10, "SVerticalBox"}, {0, 10, 10, "SButton"}, {1, 10, 10, "SButton"}};
	const std::vector<StandIn::FChildSlot> Cells = StandIn::ChildSlots(Child(BorderSlots[0].Widget, 0));
	ASSERT_EQ(Cells.size(), Expected.size());
	for (size_t Index = 0; Index < Cells.size(); ++Index)
	{
		EXPECT_EQ(Cells[Index].Column, Expected[Index].Column);
		EXPECT_EQ(Cells[Index].Row, Expected[Index].Row);
		EXPECT_EQ(Cells[Index].Padding, FMargin(Expected[Index].Padding));
		EXPECT_EQ(StandIn::WidgetType(Cells[Index].Widget), Expected[Index].Type);
	}
	EXPECT_EQ(StandIn::ChildSlots(EntriesBox()).size(), 0u);
	EXPECT_EQ(ChildTypes(GridCell(0, 9)), (std::vector<std::string>{"SEditableText", "SCheckBox"}));
}

TEST_F(FPakingDialogTest, ActionButtonsAreLocalisedAndDefaultStyled)
{
	OpenDialog();
	struct FExpectedButton
	{
		TSharedRef<SWidget> Button;
		std::string Caption;
		std::string Key;
	};
	const std::vector<FExpectedButton> Buttons = {{AddPluginButton(), "Add Plugin", "AddPluginButtonLabel"}, {DistributeButton(), "Distribute", "DistributeButton"}, {ResetButton(), "Reset", "ResetButton"}};
	for (const FExpectedButton& Expected : Buttons)
	{
		const StandIn::FPaintedWidget Painted = StandIn::Paint(Expected.Button);
		EXPECT_EQ(Utf8(Painted.Text), Expected.Caption);
		EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetNamespace(Painted.Text).Get(FString())), "SPakingDialog");
		EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetKey(Painted.Text).Get(FString())), Expected.Key);
		EXPECT_EQ(Painted.ButtonStyle, &FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button"));
	}
}

TEST_F(FPakingDialogTest, EditionCaptionIsBoldButEditableInTheDefaultColour)
{
	OpenDialog();
	const TSharedRef<SWidget> Caption = Child(GridCell(0, 9), 0);
	StandIn::FPaintedWidget Painted = StandIn::Paint(Caption);
	EXPECT_EQ(Utf8(Painted.Text), "Calverly5 Plugin");
	EXPECT_FALSE(FTextInspector::GetKey(Painted.Text).IsSet());
	ASSERT_TRUE(Painted.Font.has_value());
	EXPECT_EQ(Painted.Font->TypefaceFontName, FName("Bold"));
	EXPECT_EQ(Painted.Font->Size, 10);
	EXPECT_FALSE(Painted.ColorAndOpacity.has_value());
	EXPECT_FALSE(Painted.bIsReadOnly);
	EXPECT_EQ(StandIn::Paint(EditionCheckBox()).CheckState, ECheckBoxState::Unchecked);

	// Whatever is typed there is read by nobody.
	const size_t Mark = LogMark();
	EXPECT_TRUE(StandIn::CommitText(Caption, TEXT("Calverly6")));
	EXPECT_EQ(Shown(Caption), "Calverly6");
	EXPECT_TRUE(LogTempLines(Mark).empty());
	EXPECT_TRUE(MessageBoxTexts().empty());
}

TEST_F(FPakingDialogTest, EachAddPluginAppendsASelectionRowAndADLCBlock)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());
	StandIn::ClickButton(AddPluginButton());

	const std::vector<StandIn::FChildSlot> Blocks = StandIn::ChildSlots(EntriesBox());
	EXPECT_EQ(ChildTypes(EntriesBox()), (std::vector<std::string>{"SHorizontalBox", "SVerticalBox", "SHorizontalBox", "SVerticalBox"}));
	for (const StandIn::FChildSlot& Block : Blocks)
	{
		EXPECT_EQ(Block.Padding, FMargin(5));
	}

	const std::vector<StandIn::FChildSlot> Row = StandIn::ChildSlots(Blocks[0].Widget);
	ASSERT_EQ(Row.size(), 2u);
	EXPECT_EQ(StandIn::WidgetType(Row[0].Widget), "SComboBox<TSharedPtr<FString>>");
	EXPECT_FLOAT_EQ(Row[0].Fill, 0.8f);
	EXPECT_FLOAT_EQ(Row[1].Fill, 1.0f);
	EXPECT_EQ(ChildTypes(Row[1].Widget), (std::vector<std::string>{"SEditableText", "SCheckBox"}));
	ExpectEntryCaption(Child(Row[1].Widget, 0), "Original Plugin");
	EXPECT_EQ(StandIn::Paint(OriginalCheckBox(0)).CheckState, ECheckBoxState::Unchecked);

	const TSharedRef<SWidget> FaceButton = Child(Combo(0), 0);
	EXPECT_EQ(StandIn::WidgetType(FaceButton), "SButton");
	EXPECT_EQ(StandIn::Paint(FaceButton).ButtonStyle, NoBorderStyle());
	ExpectEntryCaption(ComboFace(0), "Select a cooked plugin");
	EXPECT_TRUE(StandIn::Paint(ComboFace(0)).bTextIsBound);

	EXPECT_EQ(ChildTypes(Blocks[1].Widget), (std::vector<std::string>{"SEditableText", "SEditableTextBox"}));
	ExpectEntryCaption(Child(Blocks[1].Widget, 0), "Enter required DLCs (separated by comma):");
	const StandIn::FPaintedWidget TextBox = StandIn::Paint(DLCTextBox(0));
	EXPECT_EQ(Utf8(TextBox.Text), "");
	EXPECT_EQ(Utf8(TextBox.HintText), "Enter required DLC names separated by commas");
}

TEST_F(FPakingDialogTest, ComboListsTheCookedPluginsAsBorderlessWhiteNames)
{
	CookPlugin("Alpha");
	CookPlugin("Beta");
	WriteFile("C:/Work/Moravane/Plugins/Uncooked/Uncooked.uplugin", "{}");
	const TArray<FString> Discovered = FUGCPaking().FindCookedPlugins();
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());

	const std::vector<TSharedRef<SWidget>> Rows = StandIn::OpenComboBox(Combo(0));
	ASSERT_EQ(Rows.size(), 2u);
	for (size_t Index = 0; Index < Rows.size(); ++Index)
	{
		EXPECT_EQ(StandIn::WidgetType(Rows[Index]), "SButton");
		EXPECT_EQ(StandIn::Paint(Rows[Index]).ButtonStyle, NoBorderStyle());
		ExpectEntryCaption(Child(Rows[Index], 0), StandIn::ToUtf8(Discovered[(int32)Index]));
	}
}

TEST_F(FPakingDialogTest, ComboFaceShowsTheChoiceAtTheNextPaint)
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

	// A later "Add Plugin" renews the options; the choice made before stays.
	StandIn::ClickButton(AddPluginButton());
	EXPECT_EQ(Shown(Face), "Beta");
	ASSERT_TRUE(StandIn::ChooseComboOption(Combo(1), TEXT("Alpha")));
	EXPECT_EQ(Shown(Face), "Alpha");
}
