#include "PakingDialogTest.h"
#include "Widgets/SNullWidget.h"

void FPakingDialogTest::CookPlugin(const std::string& Name) const
{
	WriteFile("C:/Work/Moravane/Plugins/" + Name + "/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/" + Name + "/Content/Metadata/DevelopmentAssetRegistry.bin", "registry");
}

TSharedRef<SWidget> FPakingDialogTest::OpenDialog()
{
	if (!Paking.IsValid())
	{
		Paking = MakeShared<FUGCPaking>();
	}
	Paking->OpenPakingDialog();
	Dialog = StandIn::JournalRecords<StandIn::FWindowRecord>().back()->Content;
	return Dialog.ToSharedRef();
}

TSharedRef<SWidget> FPakingDialogTest::GridCell(int32 Column, int32 Row) const
{
	const TSharedRef<SWidget> Grid = Child(Child(Child(Dialog.ToSharedRef(), 0), 0), 0);
	for (const StandIn::FChildSlot& Slot : StandIn::ChildSlots(Grid))
	{
		if (Slot.Column == Column && Slot.Row == Row)
		{
			return Slot.Widget;
		}
	}
	ADD_FAILURE() << "no grid slot at column " << Column << ", row " << Row;
	return SNullWidget::NullWidget;
}

void FPakingDialogTest::AddEntry(const std::string& Plugin, bool bOriginal, const std::string& DLCs)
{
	StandIn::ClickButton(AddPluginButton());
	const int32 Entry = (int32)StandIn::ChildSlots(EntriesBox()).size() / 2 - 1;
	if (!Plugin.empty())
	{
		EXPECT_TRUE(StandIn::ChooseComboOption(Combo(Entry), StandIn::FromUtf8(Plugin)));
	}
	if (bOriginal)
	{
		StandIn::ClickCheckBox(OriginalCheckBox(Entry));
	}
	if (!DLCs.empty())
	{
		StandIn::CommitText(DLCTextBox(Entry), StandIn::FromUtf8(DLCs));
	}
}

TSharedRef<SWidget> FPakingDialogTest::Child(const TSharedRef<SWidget>& Widget, int32 Index)
{
	return StandIn::ChildSlots(Widget).at((size_t)Index).Widget;
}
