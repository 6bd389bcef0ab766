#include "Inspectors/Inspector.h"
#include "StandIn/UserInput.h"
#include "StandIn/WidgetTree.h"
#include "StandIn/World.h"
#include <cstdio>
#include <cstdlib>

namespace
{
	// Input meant for one kind of widget reaching another is a mistake of the caller, not a user action.
	template <typename InputType>
	const InputType& InputOf(const TSharedRef<SWidget>& Widget, const char* Kind)
	{
		const InputType* Input = dynamic_cast<const InputType*>(StandIn::FindWidgetInspector(Widget.Get()));
		if (Input == nullptr)
		{
			std::fprintf(stderr, "Stand-in Slate: %s is not %s\n", StandIn::WidgetType(Widget).c_str(), Kind);
			std::abort();
		}
		return *Input;
	}
} // namespace

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
			FChildSlot Child{Children->GetChildAt(Index), FMargin(), -1.0f, -1, -1};
			const FSlotBase& Slot = FSlotInspector::SlotAt(*Children, Index);
			if (const FSlotInspector* Inspector = FindSlotInspector(Slot))
			{
				Inspector->Read(Slot, Child);
			}
			Slots.push_back(Child);
		}
		return Slots;
	}

	FPaintedWidget Paint(const TSharedRef<SWidget>& Widget)
	{
		FPaintedWidget Painted;
		Painted.bIsEnabled = Widget->IsEnabled();
		if (const FWidgetInspector* Inspector = FindWidgetInspector(Widget.Get()))
		{
			Inspector->Paint(Widget.Get(), Painted);
		}
		return Painted;
	}

	FText ShownText(const TSharedRef<SWidget>& Widget)
	{
		const FWidgetInspector* Inspector = FindWidgetInspector(Widget.Get());
		if (Inspector != nullptr && Inspector->ShowsText(Widget.Get()))
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
		const IClickInput& Input = InputOf<IClickInput>(Button, "a button");
		return Button->IsEnabled() ? Input.Click(Button.Get()) : FReply::Unhandled();
	}

	void ClickCheckBox(const TSharedRef<SWidget>& CheckBox)
	{
		InputOf<ICheckInput>(CheckBox, "a check box").Click(CheckBox.Get());
	}

	void ChangeCheckState(const TSharedRef<SWidget>& CheckBox, ECheckBoxState NewState)
	{
		InputOf<ICheckInput>(CheckBox, "a check box").ChangeState(CheckBox.Get(), NewState);
	}

	std::vector<TSharedRef<SWidget>> OpenComboBox(const TSharedRef<SWidget>& ComboBox)
	{
		return InputOf<IMenuInput>(ComboBox, "a combo box").Open(ComboBox.Get());
	}

	bool ChooseComboOption(const TSharedRef<SWidget>& ComboBox, int32 OptionIndex)
	{
		const IMenuInput& Menu = InputOf<IMenuInput>(ComboBox, "a combo box");
		Menu.Open(ComboBox.Get());
		return Menu.ClickRow(ComboBox.Get(), OptionIndex);
	}

	bool ChooseComboOption(const TSharedRef<SWidget>& ComboBox, const FString& ShownRowText)
	{
		const IMenuInput& Menu = InputOf<IMenuInput>(ComboBox, "a combo box");
		const std::vector<TSharedRef<SWidget>> Rows = Menu.Open(ComboBox.Get());
		for (size_t Index = 0; Index < Rows.size(); ++Index)
		{
			if (ShownText(Rows[Index]).ToString().Equals(ShownRowText, ESearchCase::CaseSensitive))
			{
				return Menu.ClickRow(ComboBox.Get(), (int32)Index);
			}
		}
		return false;
	}

	void ClearComboSelection(const TSharedRef<SWidget>& ComboBox)
	{
		InputOf<IMenuInput>(ComboBox, "a combo box").ClearSelection(ComboBox.Get());
	}

	bool SelectListRow(const TSharedRef<SWidget>& List, const FString& ShownRowText)
	{
		return InputOf<IListInput>(List, "a list").SelectRow(List.Get(), ShownRowText);
	}

	std::vector<FMenuEntry> MenuEntries(const TSharedRef<SWidget>& Menu)
	{
		return InputOf<IMultiBoxInput>(Menu, "a menu").Entries(Menu.Get());
	}

	bool ClickMenuEntry(const TSharedRef<SWidget>& Menu, const FString& Label)
	{
		const IMultiBoxInput& Input = InputOf<IMultiBoxInput>(Menu, "a menu");
		const std::vector<FMenuEntry> Entries = Input.Entries(Menu.Get());
		for (size_t Index = 0; Index < Entries.size(); ++Index)
		{
			const FMenuEntry::EKind Kind = Entries[Index].Kind;
			if (Kind != FMenuEntry::EKind::Heading && Kind != FMenuEntry::EKind::Separator && Entries[Index].Label.ToString().Equals(Label, ESearchCase::CaseSensitive))
			{
				Input.ClickEntry(Menu.Get(), Index);
				return true;
			}
		}
		return false;
	}

	namespace
	{
		TSharedPtr<SWidget> OpenEntryOfKind(const TSharedRef<SWidget>& Menu, const FString& Label, FMenuEntry::EKind Kind)
		{
			const IMultiBoxInput& Input = InputOf<IMultiBoxInput>(Menu, "a menu");
			const std::vector<FMenuEntry> Entries = Input.Entries(Menu.Get());
			for (size_t Index = 0; Index < Entries.size(); ++Index)
			{
				if (Entries[Index].Kind == Kind && Entries[Index].Label.ToString().Equals(Label, ESearchCase::CaseSensitive))
				{
					return Input.OpenEntry(Menu.Get(), Index);
				}
			}
			return nullptr;
		}
	}

	TSharedPtr<SWidget> OpenSubMenu(const TSharedRef<SWidget>& Menu, const FString& Label)
	{
		return OpenEntryOfKind(Menu, Label, FMenuEntry::EKind::SubMenu);
	}

	TSharedPtr<SWidget> OpenComboDropDown(const TSharedRef<SWidget>& ToolBar, const FString& Label)
	{
		return OpenEntryOfKind(ToolBar, Label, FMenuEntry::EKind::ComboButton);
	}

	bool CommitText(const TSharedRef<SWidget>& TextWidget, const FString& Text, ETextCommit::Type CommitType)
	{
		return InputOf<ITextInput>(TextWidget, "an editable text or text box").Commit(TextWidget.Get(), FText::FromString(Text), CommitType);
	}
} // namespace StandIn
