#include "PakingDialogDriver.h"
#include "StandIn/UserInput.h"
#include "StandIn/WidgetTree.h"
#include "StandIn/World.h"
#include <stdexcept>

FPakingDialogDriver::FPakingDialogDriver(TSharedRef<SWidget> InDialog)
	: Dialog(InDialog)
{
}

TSharedRef<SWidget> FPakingDialogDriver::GridCell(int32 Column, int32 Row) const
{
	// Border, scroll box, grid.
	const TSharedRef<SWidget> Grid = Child(Child(Child(Dialog, 0), 0), 0);
	for (const StandIn::FChildSlot& Slot : StandIn::ChildSlots(Grid))
	{
		if (Slot.Column == Column && Slot.Row == Row)
		{
			return Slot.Widget;
		}
	}
	throw std::out_of_range("no grid slot at column " + std::to_string(Column) + ", row " + std::to_string(Row));
}

size_t FPakingDialogDriver::EntryCount() const
{
	return StandIn::ChildSlots(EntriesBox()).size() / 2;
}

bool FPakingDialogDriver::AddEntry(const std::string& Plugin, bool bOriginal, const std::string* DLCs)
{
	const size_t EntriesBefore = EntryCount();
	StandIn::ClickButton(AddPluginButton());
	if (EntryCount() == EntriesBefore)
	{
		return false;
	}
	const int32 Entry = (int32)EntriesBefore;
	const bool bChosen = Plugin.empty() || StandIn::ChooseComboOption(Combo(Entry), StandIn::FromUtf8(Plugin));
	if (!bChosen)
	{
		return false;
	}
	if (bOriginal)
	{
		StandIn::ClickCheckBox(OriginalCheckBox(Entry));
	}
	if (DLCs != nullptr)
	{
		StandIn::CommitText(DLCTextBox(Entry), StandIn::FromUtf8(*DLCs));
	}
	return true;
}

std::vector<std::string> FPakingDialogDriver::OptionTexts(const TSharedRef<SWidget>& ComboBox)
{
	std::vector<std::string> Texts;
	for (const TSharedRef<SWidget>& Row : StandIn::OpenComboBox(ComboBox))
	{
		Texts.push_back(StandIn::ToUtf8(StandIn::ShownText(Row).ToString()));
	}
	return Texts;
}

TSharedRef<SWidget> FPakingDialogDriver::Child(const TSharedRef<SWidget>& Widget, int32 Index)
{
	return StandIn::ChildSlots(Widget).at((size_t)Index).Widget;
}
