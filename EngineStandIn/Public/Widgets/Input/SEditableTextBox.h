#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

namespace StandIn
{
	class FEditableTextBoxInspector;
}

// An editable text in a box; commits on Enter, on losing focus and on clearing.
class SLATE_API SEditableTextBox : public SBorder
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SEditableTextBox)
		: _HintText() {}
		// Shown greyed while the box is empty.
		SLATE_ATTRIBUTE(FText, HintText)
		SLATE_EVENT(FOnTextChanged, OnTextChanged)
		SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);
	// Shown beside the text until an empty error replaces it.
	void SetError(const FText& InError);

private:
	friend class StandIn::FEditableTextBoxInspector;

	TAttribute<FText> HintText;
	FOnTextChanged OnTextChanged;
	FOnTextCommitted OnTextCommitted;
	FText EditedText;
	FText ErrorText;
};
