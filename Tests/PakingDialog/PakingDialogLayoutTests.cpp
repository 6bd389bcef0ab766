#include "PakingDialogTest.h"
#include "Styling/CoreStyle.h"
#include <algorithm>
#include <cstdio>

using FStrings = std::vector<std::string>;

namespace
{
	const FButtonStyle* NoBorderStyle()
	{
		return &FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder");
	}

	FStrings ChildTypes(const TSharedRef<SWidget>& Widget)
	{
		FStrings Types;
		for (const StandIn::FChildSlot& Slot : StandIn::ChildSlots(Widget))
		{
			Types.push_back(StandIn::WidgetType(Slot.Widget));
		}
		return Types;
	}

	// A text widget as a paint shows it, in plain strings: "default" stands for an unset font or colour.
	struct FCaption
	{
		std::string Type;
		std::string Text;
		std::string Font;
		std::string Colour;
		bool bReadOnly = false;

		bool operator==(const FCaption& Other) const { return Type == Other.Type && Text == Other.Text && Font == Other.Font && Colour == Other.Colour && bReadOnly == Other.bReadOnly; }
	};

	void PrintTo(const FCaption& Caption, std::ostream* Stream)
	{
		*Stream << Caption.Type << " \"" << Caption.Text << "\", font " << Caption.Font << ", colour " << Caption.Colour << (Caption.bReadOnly ? ", read-only" : ", editable");
	}

	FCaption CaptionOf(const TSharedRef<SWidget>& Widget)
	{
		const StandIn::FPaintedWidget Painted = StandIn::Paint(Widget);
		FCaption Caption{StandIn::WidgetType(Widget), StandIn::ToUtf8(Painted.Text.ToString()), "default", "default", Painted.bIsReadOnly};
		if (Painted.Font.has_value())
		{
			Caption.Font = StandIn::ToUtf8(Painted.Font->TypefaceFontName.ToString()) + " " + std::to_string(Painted.Font->Size);
		}
		if (Painted.ColorAndOpacity.has_value())
		{
			const FLinearColor Colour = Painted.ColorAndOpacity->GetSpecifiedColor();
			char Text[64];
			std::snprintf(Text, sizeof(Text), "(%g, %g, %g, %g)", Colour.R, Colour.G, Colour.B, Colour.A);
			Caption.Colour = Text;
		}
		return Caption;
	}

	// How every caption and name inside an entry block is drawn.
	FCaption EntryCaption(const std::string& Text)
	{
		return FCaption{"SEditableText", Text, "Bold 10", "(1, 1, 1, 1)", true};
	}
} // namespace

TEST_F(FPakingDialogTest, EachUseOpensItsOwnNonModalWindowOnAFreshDiscovery)
{
	Translate("UGCPaking", "PakingDialogTitle", "Pak-Dialog");
	CookPlugin("Alpha");
	const TSharedRef<SWidget> First = OpenDialog();
	const TSharedRef<SWidget> Second = OpenDialog();

	const std::vector<const StandIn::FWindowRecord*> Windows = StandIn::JournalRecords<StandIn::FWindowRecord>();
	ASSERT_EQ(Windows.size(), 2u);
	for (const StandIn::FWindowRecord* Window : Windows)
	{
		EXPECT_EQ(Utf8(Window->Title), "Pak-Dialog");
		EXPECT_EQ(Window->ClientSize, FVector2D(400, 400));
		EXPECT_FALSE(Window->bSupportsMaximize);
		EXPECT_FALSE(Window->bSupportsMinimize);
		EXPECT_TRUE(Window->bShowImmediately);
		EXPECT_EQ(StandIn::WidgetType(Window->Content), "SPakingDialog");
	}
	EXPECT_NE(First, Second);
	const FStrings Lines = LogTempLines();
	EXPECT_EQ(std::count(Lines.begin(), Lines.end(), "LogTemp: Found plugin folder: Alpha"), 2);
}

TEST_F(FPakingDialogTest, FrameIsABorderedScrollingGridOfFiveSlotsWithTheEditionBoxUnticked)
{
	OpenDialog();

	const std::vector<StandIn::FChildSlot> BorderSlots = StandIn::ChildSlots(Child(Dialog.ToSharedRef(), 0));
	EXPECT_EQ(StandIn::WidgetType(Child(Dialog.ToSharedRef(), 0)), "SBorder");
	ASSERT_EQ(BorderSlots.size(), 1u);
	EXPECT_EQ(BorderSlots[0].Padding, FMargin(15));
	EXPECT_EQ(StandIn::WidgetType(BorderSlots[0].Widget), "SScrollBox");
	EXPECT_EQ(ChildTypes(BorderSlots[0].Widget), (FStrings{"SGridPanel"}));

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
		EXPECT_EQ(Cells[Index].Column, Expected[Index].Column) << "cell " << Index;
		EXPECT_EQ(Cells[Index].Row, Expected[Index].Row) << "cell " << Index;
		EXPECT_EQ(Cells[Index].Padding, FMargin(Expected[Index].Padding)) << "cell " << Index;
		EXPECT_EQ(StandIn::WidgetType(Cells[Index].Widget), Expected[Index].Type) << "cell " << Index;
	}
	EXPECT_EQ(EntryCount(), 0u);
	EXPECT_EQ(ChildTypes(GridCell(0, 9)), (FStrings{"SEditableText", "SCheckBox"}));
	EXPECT_EQ(StandIn::Paint(EditionCheckBox()).CheckState, ECheckBoxState::Unchecked);
}

TEST_F(FPakingDialogTest, ActionButtonsShowTheirTranslatedCaptionsInTheDefaultStyle)
{
	Translate("SPakingDialog", "AddPluginButtonLabel", "Plugin hinzufügen");
	Translate("SPakingDialog", "DistributeButton", "Verteilen");
	Translate("SPakingDialog", "ResetButton", "Zurücksetzen");
	OpenDialog();

	const std::vector<TSharedRef<SWidget>> Buttons = {AddPluginButton(), DistributeButton(), ResetButton()};
	FStrings Captions;
	for (const TSharedRef<SWidget>& Button : Buttons)
	{
		const StandIn::FPaintedWidget Painted = StandIn::Paint(Button);
		Captions.push_back(Utf8(Painted.Text));
		EXPECT_EQ(Painted.ButtonStyle, &FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button")) << Captions.back();
	}
	EXPECT_EQ(Captions, (FStrings{"Plugin hinzufügen", "Verteilen", "Zurücksetzen"}));
}

TEST_F(FPakingDialogTest, EditionCaptionIsBoldButEditableAndWhatIsTypedThereIsReadByNobody)
{
	OpenDialog();
	const TSharedRef<SWidget> Caption = Child(GridCell(0, 9), 0);
	EXPECT_EQ(CaptionOf(Caption), (FCaption{"SEditableText", "Calverly5 Plugin", "Bold 10", "default", false}));

	const size_t Mark = JournalMark();
	EXPECT_TRUE(StandIn::CommitText(Caption, TEXT("Calverly6")));

	EXPECT_EQ(Shown(Caption), "Calverly6");
	EXPECT_EQ(StandIn::JournalLines(Mark), FStrings{});
}

TEST_F(FPakingDialogTest, EachAddPluginAppendsASelectionRowAndADLCBlock)
{
	CookPlugin("Alpha");
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());
	StandIn::ClickButton(AddPluginButton());

	const std::vector<StandIn::FChildSlot> Blocks = StandIn::ChildSlots(EntriesBox());
	EXPECT_EQ(ChildTypes(EntriesBox()), (FStrings{"SHorizontalBox", "SVerticalBox", "SHorizontalBox", "SVerticalBox"}));
	for (const StandIn::FChildSlot& Block : Blocks)
	{
		EXPECT_EQ(Block.Padding, FMargin(5));
	}

	const std::vector<StandIn::FChildSlot> Row = StandIn::ChildSlots(Blocks[0].Widget);
	ASSERT_EQ(Row.size(), 2u);
	EXPECT_EQ(StandIn::WidgetType(Row[0].Widget), "SComboBox<TSharedPtr<FString>>");
	EXPECT_FLOAT_EQ(Row[0].Fill, 0.8f);
	EXPECT_FLOAT_EQ(Row[1].Fill, 1.0f);
	EXPECT_EQ(ChildTypes(Row[1].Widget), (FStrings{"SEditableText", "SCheckBox"}));
	EXPECT_EQ(CaptionOf(Child(Row[1].Widget, 0)), EntryCaption("Original Plugin"));
	EXPECT_EQ(StandIn::Paint(OriginalCheckBox(0)).CheckState, ECheckBoxState::Unchecked);

	const TSharedRef<SWidget> FaceButton = Child(Combo(0), 0);
	EXPECT_EQ(StandIn::WidgetType(FaceButton), "SButton");
	EXPECT_EQ(StandIn::Paint(FaceButton).ButtonStyle, NoBorderStyle());
	EXPECT_EQ(CaptionOf(ComboFace(0)), EntryCaption("Select a cooked plugin"));

	EXPECT_EQ(ChildTypes(Blocks[1].Widget), (FStrings{"SEditableText", "SEditableTextBox"}));
	EXPECT_EQ(CaptionOf(Child(Blocks[1].Widget, 0)), EntryCaption("Enter required DLCs (separated by comma):"));
	const StandIn::FPaintedWidget TextBox = StandIn::Paint(DLCTextBox(0));
	EXPECT_EQ(Utf8(TextBox.Text), "");
	EXPECT_EQ(Utf8(TextBox.HintText), "Enter required DLC names separated by commas");
}

TEST_F(FPakingDialogTest, ComboListsTheCookedPluginsInDiscoveryOrderAsBorderlessWhiteNames)
{
	CookPlugin("Beta");
	CookPlugin("Alpha");
	WriteFile("C:/Work/Moravane/Plugins/Uncooked/Uncooked.uplugin", "{}");
	const FStrings Discovered = ToUtf8Strings(FUGCPaking().FindCookedPlugins());
	OpenDialog();
	StandIn::ClickButton(AddPluginButton());

	const std::vector<TSharedRef<SWidget>> Rows = StandIn::OpenComboBox(Combo(0));
	std::vector<FCaption> Names;
	for (const TSharedRef<SWidget>& Row : Rows)
	{
		EXPECT_EQ(StandIn::WidgetType(Row), "SButton");
		EXPECT_EQ(StandIn::Paint(Row).ButtonStyle, NoBorderStyle());
		Names.push_back(CaptionOf(Child(Row, 0)));
	}
	ASSERT_EQ(Discovered.size(), 2u);
	EXPECT_EQ(Names, (std::vector<FCaption>{EntryCaption(Discovered[0]), EntryCaption(Discovered[1])}));
}
