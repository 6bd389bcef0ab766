#pragma once

// The one way the headless editor and the dialog tests reach the paking dialog's widgets and operate
// them: by the places the dialog's layout gives them, so that a translated caption does not lose them.
#include "CoreMinimal.h"
#include "Widgets/SWidget.h"
#include <string>
#include <vector>

class FPakingDialogDriver
{
public:
	explicit FPakingDialogDriver(TSharedRef<SWidget> InDialog);

	// The frame: a grid whose cells hold the action buttons, the entries box and the edition block.
	TSharedRef<SWidget> GridCell(int32 Column, int32 Row) const;
	TSharedRef<SWidget> AddPluginButton() const { return GridCell(0, 0); }
	TSharedRef<SWidget> EntriesBox() const { return GridCell(0, 1); }
	TSharedRef<SWidget> EditionCheckBox() const { return Child(GridCell(0, 9), 1); }
	TSharedRef<SWidget> DistributeButton() const { return GridCell(0, 10); }
	TSharedRef<SWidget> ResetButton() const { return GridCell(1, 10); }

	// An entry's widgets; entry N owns slots 2N (its selection row) and 2N+1 (its DLC block) of the box.
	size_t EntryCount() const;
	TSharedRef<SWidget> Combo(int32 Entry) const { return Child(Child(EntriesBox(), 2 * Entry), 0); }
	TSharedRef<SWidget> ComboFace(int32 Entry) const { return Child(Child(Combo(Entry), 0), 0); }
	TSharedRef<SWidget> OriginalCheckBox(int32 Entry) const { return Child(Child(Child(EntriesBox(), 2 * Entry), 1), 1); }
	TSharedRef<SWidget> DLCTextBox(int32 Entry) const { return Child(Child(EntriesBox(), 2 * Entry + 1), 1); }

	// Clicks "Add Plugin" and, when that made an entry, picks the plugin (none when empty), ticks
	// "Original Plugin" and commits the DLC text as asked. False when no entry came or the plugin was not
	// among its options; the entry stays as far as it got.
	bool AddEntry(const std::string& Plugin, bool bOriginal, const std::string* DLCs);

	// The texts of the options a combo box lists when it opens.
	static std::vector<std::string> OptionTexts(const TSharedRef<SWidget>& ComboBox);

	static TSharedRef<SWidget> Child(const TSharedRef<SWidget>& Widget, int32 Index);

	TSharedRef<SWidget> Dialog;
};
