#pragma once

// Reading the retained widget tree as a paint would show it. The module never includes this header.
#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SWidget.h"
#include <optional>
#include <string>
#include <vector>

namespace StandIn
{
	// The class as written at SNew: "SButton", "SComboBox<TSharedPtr<FString>>".
	std::string WidgetType(const TSharedRef<SWidget>& Widget);

	// A child with the slot that holds it, in the widget's order. Fill is a box slot's stretch
	// coefficient (0 when it sizes to its content, 1 by default, -1 outside boxes); Column and Row are a
	// grid slot's (-1 elsewhere).
	struct FChildSlot
	{
		TSharedRef<SWidget> Widget;
		FMargin Padding;
		float Fill;
		int32 Column;
		int32 Row;
	};
	std::vector<FChildSlot> ChildSlots(const TSharedRef<SWidget>& Widget);

	// A widget as a paint shows it: bound attributes are asked again. Text is a button's caption, an
	// editable text's contents (what the user typed, unless the text is bound) or a window's title. An
	// unset font or colour is the widget style's.
	struct FPaintedWidget
	{
		FText Text;
		bool bTextIsBound = false;
		FText HintText;
		std::optional<FSlateFontInfo> Font;
		std::optional<FSlateColor> ColorAndOpacity;
		bool bIsReadOnly = false;
		const FButtonStyle* ButtonStyle = nullptr;
		ECheckBoxState CheckState = ECheckBoxState::Unchecked;
		// False when the widget takes no input (its IsEnabled, asked again).
		bool bIsEnabled = true;
		// An editable text box's error.
		FText ErrorText;
		// What an image draws; null draws nothing.
		const FSlateBrush* Image = nullptr;
		// A box's overrides, when set.
		std::optional<float> WidthOverride;
		std::optional<float> HeightOverride;
		// A list's rows in order, and the rows selected, in the order they were selected.
		std::vector<FText> ListRows;
		std::vector<FText> SelectedListRows;
	};
	FPaintedWidget Paint(const TSharedRef<SWidget>& Widget);
	// The text the widget shows, or else the first non-empty text below it (depth first).
	FText ShownText(const TSharedRef<SWidget>& Widget);

	// A line of a menu that FMenuBuilder made, or a block of a tool bar that FToolBarBuilder made, as it shows.
	struct FMenuEntry
	{
		enum class EKind
		{
			Heading,
			Separator,
			// A menu entry for a command.
			Entry,
			SubMenu,
			// A tool bar button for a command.
			ToolBarButton,
			ComboButton
		};
		EKind Kind = EKind::Entry;
		// A heading's text, or an entry's label: the label override if it was given, else the command's.
		FText Label;
		// The tooltip override if it was given, else the command's description.
		FText ToolTip;
		// The icon override if it was given, else the command's icon; names none when neither is set.
		FName IconStyleSetName;
		FName IconStyleName;
		// What that icon resolves to, null without an icon. A brush without a resource (such as the
		// style defaults' no-brush) draws nothing.
		const FSlateBrush* IconBrush = nullptr;
		// A sub-menu's: whether it opens on a click rather than on hover, and whether choosing in it closes
		// the whole menu.
		bool bOpensOnClick = false;
		bool bClosesMenuAfterSelection = false;
		// A combo button's: whether its action has an execute bound (which a click never runs: the action
		// only says whether the button is enabled), and whether it shows as a simple combo box, without icon
		// and label.
		bool bHasOwnAction = false;
		bool bIsSimpleComboBox = false;
	};
	// The lines of a menu widget or the blocks of a tool bar widget (what FMenuBuilder::MakeWidget or
	// FToolBarBuilder::MakeWidget returned), in order; the hidden search box is not among them.
	std::vector<FMenuEntry> MenuEntries(const TSharedRef<SWidget>& Menu);
}
