#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SComboButton.h"

// A combo button whose menu lists the options; the content is the closed face.
template <typename OptionType>
class SComboBox : public SComboButton
{
public:
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
		OptionsSource = InArgs._OptionsSource;
		OnSelectionChanged = InArgs._OnSelectionChanged;
		OnGenerateWidget = InArgs._OnGenerateWidget;
		SComboButton::Construct(SComboButton::FArguments().ButtonContent()[InArgs._Content.Widget]);
	}

private:
	// Choosing the item that is already selected only closes the list.
	void OnSelectionChanged_Internal(OptionType ProposedSelection, ESelectInfo::Type SelectInfo)
	{
		if (SelectInfo != ESelectInfo::OnNavigation && ProposedSelection != SelectedItem)
		{
			SelectedItem = ProposedSelection;
			OnSelectionChanged.ExecuteIfBound(ProposedSelection, SelectInfo);
		}
	}

	virtual TArray<TSharedRef<SWidget>> StandInOpenMenu() override
	{
		TArray<TSharedRef<SWidget>> Rows;
		if (OptionsSource != nullptr)
		{
			for (const OptionType& Option : *OptionsSource)
			{
				Rows.Add(OnGenerateWidget.IsBound() ? OnGenerateWidget.Execute(Option) : SNullWidget::NullWidget);
			}
		}
		return Rows;
	}

	virtual bool StandInClickMenuRow(int32 RowIndex) override
	{
		if (OptionsSource == nullptr || !OptionsSource->IsValidIndex(RowIndex))
		{
			return false;
		}
		OnSelectionChanged_Internal((*OptionsSource)[RowIndex], ESelectInfo::OnMouseClick);
		return true;
	}

	const TArray<OptionType>* OptionsSource = nullptr;
	OptionType SelectedItem = OptionType();
	FOnSelectionChanged OnSelectionChanged;
	FOnGenerateWidget OnGenerateWidget;
};
