#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Layout/Children.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/SNullWidget.h"

namespace StandIn
{
	// Stands for the SListView<OptionType> that the engine's SComboBox builds as its menu content and whose
	// selection it follows: its rows are made as the menu opens, and a click on a row or a cleared selection
	// is reported to the combo box as the engine's list reports it. Being no template, it is what one
	// inspector drives for every SComboBox<OptionType>.
	class SComboListView : public SWidget
	{
	public:
		// The rows exist only while the menu is open, so they are nobody's children.
		virtual FChildren* GetChildren() override { return &NoChildren; }

		virtual int32 NumItems() const = 0;
		virtual TSharedRef<SWidget> GenerateRow(int32 ItemIndex) = 0;
		// The item becomes the only one selected, reported as a mouse click.
		virtual void ClickRow(int32 ItemIndex) = 0;
		// Nothing happens when nothing is selected; otherwise the selection is emptied and a null item is
		// reported, with selection kind Direct.
		virtual void ClearSelection() = 0;

	private:
		FNoChildren NoChildren;
	};

	template <typename ItemType>
	class TComboListView final : public SComboListView
	{
	public:
		TComboListView(const TArray<ItemType>* InItemsSource, const TFunction<TSharedRef<SWidget>(ItemType)>& InOnGenerateRow, const TFunction<void(ItemType, ESelectInfo::Type)>& InOnSelectionChanged)
			: ItemsSource(InItemsSource), OnGenerateRow(InOnGenerateRow), OnSelectionChanged(InOnSelectionChanged) {}

		virtual int32 NumItems() const override { return ItemsSource != nullptr ? ItemsSource->Num() : 0; }
		virtual TSharedRef<SWidget> GenerateRow(int32 ItemIndex) override { return OnGenerateRow((*ItemsSource)[ItemIndex]); }

		virtual void ClickRow(int32 ItemIndex) override
		{
			SelectedItems.Empty();
			SelectedItems.Add((*ItemsSource)[ItemIndex]);
			OnSelectionChanged(SelectedItems[0], ESelectInfo::OnMouseClick);
		}

		virtual void ClearSelection() override
		{
			if (SelectedItems.Num() == 0)
			{
				return;
			}
			SelectedItems.Empty();
			OnSelectionChanged(ItemType(), ESelectInfo::Direct);
		}

	private:
		// Read each time the menu opens, as the engine's list reads its source on every refresh.
		const TArray<ItemType>* ItemsSource;
		TFunction<TSharedRef<SWidget>(ItemType)> OnGenerateRow;
		TFunction<void(ItemType, ESelectInfo::Type)> OnSelectionChanged;
		TArray<ItemType> SelectedItems;
	};
}

// A combo button whose menu lists the options; the content is the closed face.
template <typename OptionType>
class SComboBox : public SComboButton
{
public:
	typedef StandIn::TComboListView<OptionType> SComboListType;
	typedef typename TSlateDelegates<OptionType>::FOnGenerateWidget FOnGenerateWidget;
	typedef typename TSlateDelegates<OptionType>::FOnSelectionChanged FOnSelectionChanged;

	// clang-format off
	SLATE_BEGIN_ARGS(SComboBox)
		: _Content(), _OptionsSource(nullptr) {}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		// Read each time the list opens, so it must outlive the combo box.
		SLATE_ARGUMENT(const TArray<OptionType>*, OptionsSource)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		SLATE_EVENT(FOnGenerateWidget, OnGenerateWidget)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs)
	{
		OnSelectionChanged = InArgs._OnSelectionChanged;
		OnGenerateWidget = InArgs._OnGenerateWidget;

		// The list lives inside this combo box, so its calls back need no lifetime guard.
		const auto OnGenerateRow = [this](OptionType Item) {
			return GenerateMenuItemRow(Item);
		};
		const auto OnListSelectionChanged = [this](OptionType ProposedSelection, ESelectInfo::Type SelectInfo) {
			OnSelectionChanged_Internal(ProposedSelection, SelectInfo);
		};
		ComboListView = MakeShareable(new SComboListType(InArgs._OptionsSource, OnGenerateRow, OnListSelectionChanged));

		SComboButton::Construct(SComboButton::FArguments().ButtonContent()[InArgs._Content.Widget].MenuContent()[ComboListView.ToSharedRef()]);
	}

private:
	TSharedRef<SWidget> GenerateMenuItemRow(OptionType InItem)
	{
		return OnGenerateWidget.IsBound() ? OnGenerateWidget.Execute(InItem) : SNullWidget::NullWidget;
	}

	// Choosing the item that is already selected only closes the list.
	void OnSelectionChanged_Internal(OptionType ProposedSelection, ESelectInfo::Type SelectInfo)
	{
		if (SelectInfo != ESelectInfo::OnNavigation && ProposedSelection != SelectedItem)
		{
			SelectedItem = ProposedSelection;
			OnSelectionChanged.ExecuteIfBound(ProposedSelection, SelectInfo);
		}
	}

	FOnSelectionChanged OnSelectionChanged;
	OptionType SelectedItem = OptionType();
	TSharedPtr<SComboListType> ComboListView;
	FOnGenerateWidget OnGenerateWidget;
};
