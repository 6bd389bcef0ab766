#include "DistributeCommand.h"
#include "StandIn/Records/WindowRecord.h"
#include "StandIn/UserInput.h"
#include "StandIn/WidgetTree.h"
#include "StandIn/World.h"
#include "UGCPaking.h"
#include <functional>
#include <iostream>

namespace
{
	// Depth first, the first widget that matches.
	TSharedPtr<SWidget> FindWidget(const TSharedRef<SWidget>& Root, const std::function<bool(const TSharedRef<SWidget>&)>& Matches)
	{
		if (Matches(Root))
		{
			return Root;
		}
		for (const StandIn::FChildSlot& Child : StandIn::ChildSlots(Root))
		{
			if (TSharedPtr<SWidget> Found = FindWidget(Child.Widget, Matches))
			{
				return Found;
			}
		}
		return nullptr;
	}

	TSharedRef<SWidget> FindByType(const TSharedRef<SWidget>& Root, const std::string& TypePrefix)
	{
		TSharedPtr<SWidget> Found = FindWidget(Root, [&TypePrefix](const TSharedRef<SWidget>& Widget) {
			return StandIn::WidgetType(Widget).rfind(TypePrefix, 0) == 0;
		});
		check(Found.IsValid());
		return Found.ToSharedRef();
	}

	TSharedRef<SWidget> FindButton(const TSharedRef<SWidget>& Root, const TCHAR* Caption)
	{
		TSharedPtr<SWidget> Found = FindWidget(Root, [Caption](const TSharedRef<SWidget>& Widget) {
			return StandIn::WidgetType(Widget) == "SButton" && StandIn::Paint(Widget).Text.ToString().Equals(Caption, ESearchCase::CaseSensitive);
		});
		check(Found.IsValid());
		return Found.ToSharedRef();
	}

	// The grid cell of the dialog's frame at a row of its first column.
	TSharedRef<SWidget> FrameCell(const TSharedRef<SWidget>& Dialog, int32 Row)
	{
		const TSharedRef<SWidget> Grid = FindByType(Dialog, "SGridPanel");
		for (const StandIn::FChildSlot& Cell : StandIn::ChildSlots(Grid))
		{
			if (Cell.Column == 0 && Cell.Row == Row)
			{
				return Cell.Widget;
			}
		}
		check(false);
		return Grid;
	}

	std::string OfferedNames(const TSharedRef<SWidget>& ComboBox)
	{
		std::string Names;
		for (const TSharedRef<SWidget>& Row : StandIn::OpenComboBox(ComboBox))
		{
			Names += (Names.empty() ? "" : ", ") + StandIn::ToUtf8(StandIn::ShownText(Row).ToString());
		}
		return Names.empty() ? "none" : Names;
	}

	struct FDistributeError
	{
		std::string Message;
	};

	// Adds one entry as a person would and fills it in; throws when the dialog will not take the plugin.
	void AddEntry(const TSharedRef<SWidget>& Dialog, const TSharedRef<SWidget>& EntriesBox, const FEditorCommandLine::FPluginChoice& Plugin)
	{
		const size_t FirstNewSlot = StandIn::ChildSlots(EntriesBox).size();
		StandIn::ClickButton(FindButton(Dialog, TEXT("Add Plugin")));
		const std::vector<StandIn::FChildSlot> Slots = StandIn::ChildSlots(EntriesBox);
		if (Slots.size() < FirstNewSlot + 2)
		{
			throw FDistributeError{"\"Add Plugin\" added no entry for --plugin " + Plugin.Name};
		}
		const TSharedRef<SWidget> SelectionRow = Slots[FirstNewSlot].Widget;
		const TSharedRef<SWidget> DLCBlock = Slots[FirstNewSlot + 1].Widget;

		const TSharedRef<SWidget> ComboBox = FindByType(SelectionRow, "SComboBox");
		if (!StandIn::ChooseComboOption(ComboBox, StandIn::FromUtf8(Plugin.Name)))
		{
			throw FDistributeError{"the dialog offers no cooked plugin named " + Plugin.Name + " (it offers: " + OfferedNames(ComboBox) + ")"};
		}
		if (Plugin.bOriginal)
		{
			StandIn::ClickCheckBox(FindByType(SelectionRow, "SCheckBox"));
		}
		if (Plugin.RequiredDLCs)
		{
			StandIn::CommitText(FindByType(DLCBlock, "SEditableTextBox"), StandIn::FromUtf8(*Plugin.RequiredDLCs));
		}
	}
}

int RunDistribute(const FEditorCommandLine& CommandLine)
{
	const TSharedRef<FUGCPaking> Paking = MakeShared<FUGCPaking>();
	Paking->OpenPakingDialog();
	const TSharedRef<SWidget> Dialog = StandIn::JournalRecords<StandIn::FWindowRecord>().back()->Content;
	const TSharedRef<SWidget> EntriesBox = FrameCell(Dialog, 1);

	try
	{
		for (const FEditorCommandLine::FPluginChoice& Plugin : CommandLine.Plugins)
		{
			AddEntry(Dialog, EntriesBox, Plugin);
		}
	}
	catch (const FDistributeError& Error)
	{
		std::cerr << "ugc-editor: " << Error.Message << "; nothing was distributed." << std::endl;
		return 2;
	}

	if (CommandLine.bCalverly5)
	{
		const TSharedRef<SWidget> EditionCheckBox = FindByType(FrameCell(Dialog, 9), "SCheckBox");
		StandIn::ClickCheckBox(EditionCheckBox);
	}
	StandIn::ClickButton(FindButton(Dialog, TEXT("Distribute")));
	return 0;
}
