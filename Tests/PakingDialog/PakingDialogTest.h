#pragma once

#include "SandboxTest.h"
#include "UGCPaking.h"
#include <string>
#include <vector>

// A paking dialog opened the way the "Distribute" command opens it, and the ways to its widgets.
class FPakingDialogTest : public FSandboxTest
{
protected:
	// Leaves the development asset registry where discovery looks for it.
	void CookPlugin(const std::string& Name) const;
	// Opens the dialog through FUGCPaking::OpenPakingDialog and keeps the newest window's content.
	TSharedRef<SWidget> OpenDialog();

	TSharedRef<SWidget> GridCell(int32 Column, int32 Row) const;
	TSharedRef<SWidget> AddPluginButton() const { return GridCell(0, 0); }
	TSharedRef<SWidget> EntriesBox() const { return GridCell(0, 1); }
	TSharedRef<SWidget> EditionCheckBox() const { return Child(GridCell(0, 9), 1); }
	TSharedRef<SWidget> DistributeButton() const { return GridCell(0, 10); }
	TSharedRef<SWidget> ResetButton() const { return GridCell(1, 10); }

	// An entry's widgets; entry N owns slots 2N and 2N+1 of the entries box.
	TSharedRef<SWidget> Combo(int32 Entry) const { return Child(Child(EntriesBox(), 2 * Entry), 0); }
	TSharedRef<SWidget> ComboFace(int32 Entry) const { return Child(Child(Combo(Entry), 0), 0); }
	TSharedRef<SWidget> OriginalCheckBox(int32 Entry) const { return Child(Child(Child(EntriesBox(), 2 * Entry), 1), 1); }
	TSharedRef<SWidget> DLCTextBox(int32 Entry) const { return Child(Child(EntriesBox(), 2 * Entry + 1), 1); }

	// Clicks "Add Plugin", then picks the plugin, ticks "Original Plugin" and commits the DLC text as asked.
	void AddEntry(const std::string& Plugin, bool bOriginal = false, const std::string& DLCs = std::string());

	static TSharedRef<SWidget> Child(const TSharedRef<SWidget>& Widget, int32 Index);
	static std::string Utf8(const FText& Text) { return StandIn::ToUtf8(Text.ToString()); }
	static std::string Shown(const TSharedRef<SWidget>& Widget) { return Utf8(StandIn::ShownText(Widget)); }

	size_t LogMark() const { return StandIn::Journal().size(); }

	TSharedPtr<FUGCPaking> Paking;
	TSharedPtr<SWidget> Dialog;
};
