#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

namespace StandIn
{
	class FCheckBoxInspector;
}

DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState)

class SLATE_API SCheckBox : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SCheckBox)
		: _IsChecked(ECheckBoxState::Unchecked) {}
		SLATE_EVENT(FOnCheckStateChanged, OnCheckStateChanged)
		// Left unbound, the box keeps its own state.
		SLATE_ATTRIBUTE(ECheckBoxState, IsChecked)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

	// A click: checked or undetermined becomes unchecked, unchecked becomes checked.
	void ToggleCheckedState();

private:
	friend class StandIn::FCheckBoxInspector;

	TAttribute<ECheckBoxState> IsCheckboxChecked;
	FOnCheckStateChanged OnCheckStateChanged;
};
