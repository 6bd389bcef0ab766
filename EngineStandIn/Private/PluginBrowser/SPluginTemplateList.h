#pragma once

// The wizard's list of templates: one row per template, showing its name; clicking a row adds it to the
// selection when the definition allows several, else makes it the only one. Private to the Plugin Browser,
// as the engine's list there is.
#include "CoreMinimal.h"
#include "IPluginWizardDefinition.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

namespace StandIn
{
	class FPluginTemplateListInspector;
}

DECLARE_DELEGATE_TwoParams(FOnTemplateSelectionChanged, TSharedPtr<FPluginTemplateDescription>, ESelectInfo::Type);

class SPluginTemplateList : public SWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SPluginTemplateList)
		: _ListItemsSource(nullptr), _SelectionMode(ESelectionMode::Multi) {}
		SLATE_ARGUMENT(const TArray<TSharedRef<FPluginTemplateDescription>>*, ListItemsSource)
		SLATE_ARGUMENT(ESelectionMode::Type, SelectionMode)
		SLATE_EVENT(FOnTemplateSelectionChanged, OnSelectionChanged)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs)
	{
		Items = InArgs._ListItemsSource;
		SelectionMode = InArgs._SelectionMode;
		OnSelectionChanged = InArgs._OnSelectionChanged;
	}

	virtual FChildren* GetChildren() override { return &NoChildren; }

	// In the order the rows were selected.
	TArray<TSharedRef<FPluginTemplateDescription>> GetSelectedItems() const { return SelectedItems; }

private:
	friend class StandIn::FPluginTemplateListInspector;

	void ClickRow(const TSharedRef<FPluginTemplateDescription>& Item)
	{
		if (SelectionMode == ESelectionMode::Multi)
		{
			// A second Ctrl-click takes the row out of the selection again.
			if (SelectedItems.Contains(Item))
			{
				SelectedItems.RemoveAll([&Item](const TSharedRef<FPluginTemplateDescription>& Selected) {
					return Selected == Item;
				});
			}
			else
			{
				SelectedItems.Add(Item);
			}
		}
		else if (SelectionMode != ESelectionMode::None)
		{
			SelectedItems = {Item};
		}
		OnSelectionChanged.ExecuteIfBound(Item, ESelectInfo::OnMouseClick);
	}

	const TArray<TSharedRef<FPluginTemplateDescription>>* Items = nullptr;
	ESelectionMode::Type SelectionMode = ESelectionMode::Multi;
	FOnTemplateSelectionChanged OnSelectionChanged;
	TArray<TSharedRef<FPluginTemplateDescription>> SelectedItems;
	FNoChildren NoChildren;
};
