#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMenuAnchor.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SGridPanel.h"
#include "Widgets/Layout/SScrollBox.h"

void SBorder::Construct(const FArguments& InArgs)
{
	ChildSlot.Padding(InArgs._Padding)[InArgs._Content.Widget];
}

void SScrollBox::Construct(const FArguments& InArgs)
{
	for (FSlot* Slot : InArgs.Slots)
	{
		Children.Add(Slot);
	}
}

void SGridPanel::Construct(const FArguments& InArgs)
{
	for (FSlot* Slot : InArgs.Slots)
	{
		Slots.Add(Slot);
	}
}

void SButton::Construct(const FArguments& InArgs)
{
	Style = InArgs._ButtonStyle;
	Text = InArgs._Text;
	OnClicked = InArgs._OnClicked;
	ChildSlot[InArgs._Content.Widget];
}

FReply SButton::ExecuteOnClick()
{
	return OnClicked.IsBound() ? OnClicked.Execute() : FReply::Handled();
}

void SCheckBox::Construct(const FArguments& InArgs)
{
	IsCheckboxChecked = InArgs._IsChecked;
	OnCheckStateChanged = InArgs._OnCheckStateChanged;
}

void SCheckBox::ToggleCheckedState()
{
	const ECheckBoxState State = IsCheckboxChecked.Get();
	const ECheckBoxState NewState = State == ECheckBoxState::Unchecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
	if (!IsCheckboxChecked.IsBound())
	{
		IsCheckboxChecked.Set(NewState);
	}
	OnCheckStateChanged.ExecuteIfBound(NewState);
}

SMenuAnchor::SMenuAnchor()
	: Children(this)
{
	// The anchor's content: for a combo button, the button that opens the menu.
	Children.Add(new FSimpleSlot(this));
}

FChildren* SMenuAnchor::GetChildren()
{
	return &Children;
}

void SComboButton::Construct(const FArguments& InArgs)
{
	Children[0][InArgs._ButtonContent.Widget];
	MenuContent = InArgs._MenuContent.Widget;
}

void SEditableText::Construct(const FArguments& InArgs)
{
	BoundText = InArgs._Text;
	Font = InArgs._Font;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	IsReadOnly = InArgs._IsReadOnly;
}

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	HintText = InArgs._HintText;
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;
}

void SEditableTextBox::SetError(const FText& InError)
{
	ErrorText = InError;
}

SBox::SBox()
	: ChildSlot(this)
{
}

FChildren* SBox::GetChildren()
{
	return &ChildSlot;
}

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride = InArgs._WidthOverride;
	HeightOverride = InArgs._HeightOverride;
	ChildSlot.Padding(InArgs._Padding)[InArgs._Content.Widget];
}
