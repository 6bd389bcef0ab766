#pragma once

// The user's hands: input on widgets as a person at the editor would give it. Each function stops the
// program when the widget is not of the kind the input is meant for. The module never includes this header.
#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Widgets/SWidget.h"
#include <vector>

namespace StandIn
{
	// A disabled button takes no click: nothing happens and the reply is unhandled.
	FReply ClickButton(const TSharedRef<SWidget>& Button);

	// A click on the box: checked or undetermined becomes unchecked, unchecked becomes checked.
	void ClickCheckBox(const TSharedRef<SWidget>& CheckBox);
	// The box changes to the given state, undetermined included, and reports it as a click's change is
	// reported; a box whose state is not bound keeps it.
	void ChangeCheckState(const TSharedRef<SWidget>& CheckBox, ECheckBoxState NewState);

	// Opens a combo box's list: the row widgets its OnGenerateWidget makes, one per option.
	std::vector<TSharedRef<SWidget>> OpenComboBox(const TSharedRef<SWidget>& ComboBox);
	// Opens the list and clicks an option (selection kind OnMouseClick), by index or by the text its row
	// shows; false when there is no such option.
	bool ChooseComboOption(const TSharedRef<SWidget>& ComboBox, int32 OptionIndex);
	bool ChooseComboOption(const TSharedRef<SWidget>& ComboBox, const FString& ShownRowText);
	// The list's selection is cleared, as SComboBox::ClearSelection does: the combo box reports a null
	// option (selection kind Direct) when an option was selected, and nothing otherwise.
	void ClearComboSelection(const TSharedRef<SWidget>& ComboBox);

	// Replaces the contents of an editable text or text box as a user's typing would, then commits them;
	// false, with nothing changed, when the text is read-only.
	// Adds the row that shows the text to a list's selection, as a click (with Ctrl held, in a list that
	// allows several) does; false when no row shows it.
	bool SelectListRow(const TSharedRef<SWidget>& List, const FString& ShownRowText);

	bool CommitText(const TSharedRef<SWidget>& TextWidget, const FString& Text, ETextCommit::Type CommitType = ETextCommit::OnEnter);

	// Clicks the first entry or tool bar block of a menu or tool bar widget that shows this label: a command's
	// entry or button runs its action in the command list it was added with, if that list maps it; a tool
	// bar combo button opens its drop-down (see OpenComboDropDown); a sub-menu's entry does nothing unless it
	// opens on click (see OpenSubMenu). False when nothing shows the label.
	bool ClickMenuEntry(const TSharedRef<SWidget>& Menu, const FString& Label);

	// Opens the level editor's main menu or its tool bar and gives what the extensions at the hook
	// ("FileProject", "Compile") put there, each extension's builder run in the order the extenders were
	// added; both are built anew at every opening.
	TSharedRef<SWidget> OpenLevelEditorMenu(FName Hook);
	TSharedRef<SWidget> OpenLevelEditorToolBar(FName Hook);
	// Opens the sub-menu of the first entry with this label (hovering or clicking it, as it opens), or clicks
	// the first combo button with this label, which opens its drop-down wherever it is clicked unless its
	// action's can-execute says it is disabled (the action itself never runs): the content is built now.
	// Null when there is no such entry or nothing opens.
	TSharedPtr<SWidget> OpenSubMenu(const TSharedRef<SWidget>& Menu, const FString& Label);
	TSharedPtr<SWidget> OpenComboDropDown(const TSharedRef<SWidget>& ToolBar, const FString& Label);
}
