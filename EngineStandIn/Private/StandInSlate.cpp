#include "StandIn/Records/WindowRecord.h"
#include "StandIn/UserInput.h"
#include "StandIn/WidgetTree.h"
#include "StandIn/World.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SGridPanel.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include <cstdio>
#include <cstdlib>

namespace
{
	// Input meant for one kind of widget reaching another is a mistake of the caller, not a user action.
	template <typename WidgetType>
	WidgetType& As(const TSharedRef<SWidget>& Widget, const char* Kind)
	{
		WidgetType* Typed = dynamic_cast<WidgetType*>(&Widget.Get());
		if (Typed == nullptr)
		{
			std::fprintf(stderr, "Stand-in Slate: %s is not %s\n", StandIn::WidgetType(Widget).c_str(), Kind);
			std::abort();
		}
		return *Typed;
	}

	FMargin SlotPadding(const FSlotBase& Slot)
	{
		if (const SBoxPanel::FSlot* BoxSlot = dynamic_cast<const SBoxPanel::FSlot*>(&Slot))
		{
			return BoxSlot->SlotPadding.Get();
		}
		if (const SGridPanel::FSlot* GridSlot = dynamic_cast<const SGridPanel::FSlot*>(&Slot))
		{
			return GridSlot->SlotPadding.Get();
		}
		if (const SScrollBox::FSlot* ScrollSlot = dynamic_cast<const SScrollBox::FSlot*>(&Slot))
		{
			return ScrollSlot->SlotPadding.Get();
		}
		if (const FSimpleSlot* SimpleSlot = dynamic_cast<const FSimpleSlot*>(&Slot))
		{
			return SimpleSlot->SlotPadding.Get();
		}
		return FMargin();
	}
} // namespace

// The one friend of the stand-in's widgets: what a paint reads and what a user's input triggers.
struct FStandInSlateAccess
{
	static const FSlotBase& SlotAt(const FChildren& Children, int32 Index) { return Children.GetSlotAt(Index); }

	static std::shared_ptr<StandIn::FWindowRecord> Record(const TSharedRef<SWindow>& Window, bool bShowImmediately)
	{
		return std::make_shared<StandIn::FWindowRecord>(Window, Window->Title.Get(), Window->InitialDesiredSize, Window->bHasMaximizeButton, Window->bHasMinimizeButton, bShowImmediately, Window->ChildSlot.GetWidget());
	}

	static StandIn::FPaintedWidget Paint(const TSharedRef<SWidget>& Widget)
	{
		StandIn::FPaintedWidget Painted;
		SWidget* Raw = &Widget.Get();
		if (SButton* Button = dynamic_cast<SButton*>(Raw))
		{
			Painted.Text = Button->Text.Get();
			Painted.bTextIsBound = Button->Text.IsBound();
			Painted.ButtonStyle = Button->Style;
		}
		else if (SEditableText* EditableText = dynamic_cast<SEditableText*>(Raw))
		{
			Painted.bTextIsBound = EditableText->BoundText.IsBound();
			Painted.Text = EditableText->bHasEditedText && !Painted.bTextIsBound ? EditableText->EditedText : EditableText->BoundText.Get();
			if (EditableText->Font.IsSet())
			{
				Painted.Font = EditableText->Font.Get();
			}
			if (EditableText->ColorAndOpacity.IsSet())
			{
				Painted.ColorAndOpacity = EditableText->ColorAndOpacity.Get();
			}
			Painted.bIsReadOnly = EditableText->IsReadOnly.Get();
		}
		else if (SEditableTextBox* TextBox = dynamic_cast<SEditableTextBox*>(Raw))
		{
			Painted.Text = TextBox->EditedText;
			Painted.HintText = TextBox->HintText.Get();
		}
		else if (SCheckBox* CheckBox = dynamic_cast<SCheckBox*>(Raw))
		{
			Painted.CheckState = CheckBox->IsCheckboxChecked.Get();
		}
		else if (SWindow* Window = dynamic_cast<SWindow*>(Raw))
		{
			Painted.Text = Window->Title.Get();
		}
		return Painted;
	}

	static bool ShowsText(const TSharedRef<SWidget>& Widget)
	{
		SWidget* Raw = &Widget.Get();
		if (SButton* Button = dynamic_cast<SButton*>(Raw))
		{
			return Button->Text.IsSet();
		}
		return dynamic_cast<SEditableText*>(Raw) != nullptr || dynamic_cast<SEditableTextBox*>(Raw) != nullptr;
	}

	static FReply Click(SButton& Button) { return Button.ExecuteOnClick(); }
	static void Click(SCheckBox& CheckBox) { CheckBox.ToggleCheckedState(); }
	static TArray<TSharedRef<SWidget>> OpenMenu(SComboButton& ComboButton) { return ComboButton.StandInOpenMenu(); }
	static bool ClickMenuRow(SComboButton& ComboButton, int32 RowIndex) { return ComboButton.StandInClickMenuRow(RowIndex); }

	static bool Commit(const TSharedRef<SWidget>& Widget, const FText& Text, ETextCommit::Type CommitType)
	{
		SWidget* Raw = &Widget.Get();
		if (SEditableTextBox* TextBox = dynamic_cast<SEditableTextBox*>(Raw))
		{
			TextBox->EditedText = Text;
			TextBox->OnTextCommitted.ExecuteIfBound(Text, CommitType);
			return true;
		}
		SEditableText& EditableText = As<SEditableText>(Widget, "an editable text");
		if (EditableText.IsReadOnly.Get())
		{
			return false;
		}
		EditableText.EditedText = Text;
		EditableText.bHasEditedText = true;
		return true;
	}
};

FSlateApplication& FSlateApplication::Get()
{
	static FSlateApplication Instance;
	return Instance;
}

TSharedRef<SWindow> FSlateApplication::AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately)
{
	StandIn::AppendToJournal(FStandInSlateAccess::Record(InSlateWindow, bShowImmediately));
	return InSlateWindow;
}

namespace StandIn
{
	std::string WidgetType(const TSharedRef<SWidget>& Widget)
	{
		return ToUtf8(Widget->GetTypeAsString());
	}

	std::vector<FChildSlot> ChildSlots(const TSharedRef<SWidget>& Widget)
	{
		std::vector<FChildSlot> Slots;
		FChildren* Children = Widget->GetChildren();
		for (int32 Index = 0; Index < Children->Num(); ++Index)
		{
			const FSlotBase& Slot = FStandInSlateAccess::SlotAt(*Children, Index);
			FChildSlot Child{Children->GetChildAt(Index), SlotPadding(Slot), -1.0f, -1, -1};
			if (const SBoxPanel::FSlot* BoxSlot = dynamic_cast<const SBoxPanel::FSlot*>(&Slot))
			{
				Child.Fill = BoxSlot->SizeParam.SizeRule == FSizeParam::SizeRule_Stretch ? BoxSlot->SizeParam.Value.Get() : 0.0f;
			}
			if (const SGridPanel::FSlot* GridSlot = dynamic_cast<const SGridPanel::FSlot*>(&Slot))
			{
				Child.Column = GridSlot->ColumnParam;
				Child.Row = GridSlot->RowParam;
			}
			Slots.push_back(Child);
		}
		return Slots;
	}

	FPaintedWidget Paint(const TSharedRef<SWidget>& Widget)
	{
		return FStandInSlateAccess::Paint(Widget);
	}

	FText ShownText(const TSharedRef<SWidget>& Widget)
	{
		if (FStandInSlateAccess::ShowsText(Widget))
		{
			return Paint(Widget).Text;
		}
		for (const FChildSlot& Child : ChildSlots(Widget))
		{
			const FText Text = ShownText(Child.Widget);
			if (!Text.IsEmpty())
			{
				return Text;
			}
		}
		return FText::GetEmpty();
	}

	FReply ClickButton(const TSharedRef<SWidget>& Button)
	{
		return FStandInSlateAccess::Click(As<SButton>(Button, "a button"));
	}

	void ClickCheckBox(const TSharedRef<SWidget>& CheckBox)
	{
		FStandInSlateAccess::Click(As<SCheckBox>(CheckBox, "a check box"));
	}

	std::vector<TSharedRef<SWidget>> OpenComboBox(const TSharedRef<SWidget>& ComboBox)
	{
		std::vector<TSharedRef<SWidget>> Rows;
		for (const TSharedRef<SWidget>& Row : FStandInSlateAccess::OpenMenu(As<SComboButton>(ComboBox, "a combo box")))
		{
			Rows.push_back(Row);
		}
		return Rows;
	}

	bool ChooseComboOption(const TSharedRef<SWidget>& ComboBox, int32 OptionIndex)
	{
		OpenComboBox(ComboBox);
		return FStandInSlateAccess::ClickMenuRow(As<SComboButton>(ComboBox, "a combo box"), OptionIndex);
	}

	bool ChooseComboOption(const TSharedRef<SWidget>& ComboBox, const FString& ShownRowText)
	{
		const std::vector<TSharedRef<SWidget>> Rows = OpenComboBox(ComboBox);
		for (size_t Index = 0; Index < Rows.size(); ++Index)
		{
			if (ShownText(Rows[Index]).ToString().Equals(ShownRowText))
			{
				return FStandInSlateAccess::ClickMenuRow(As<SComboButton>(ComboBox, "a combo box"), (int32)Index);
			}
		}
		return false;
	}

	bool CommitText(const TSharedRef<SWidget>& TextWidget, const FString& Text, ETextCommit::Type CommitType)
	{
		return FStandInSlateAccess::Commit(TextWidget, FText::FromString(Text), CommitType);
	}
} // namespace StandIn
