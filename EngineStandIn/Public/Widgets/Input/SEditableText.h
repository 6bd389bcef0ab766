#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Children.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

namespace StandIn
{
	class FEditableTextInspector;
}

// One line of text the user can edit unless it is read-only. Font and colour left unset come from the
// widget's style.
class SLATE_API SEditableText : public SWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SEditableText)
		: _Text(), _Font(), _ColorAndOpacity(), _IsReadOnly(false) {}
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(bool, IsReadOnly)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);
	virtual FChildren* GetChildren() override { return &NoChildren; }

private:
	friend class StandIn::FEditableTextInspector;

	FNoChildren NoChildren;
	TAttribute<FText> BoundText;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<FSlateColor> ColorAndOpacity;
	TAttribute<bool> IsReadOnly;
	// What the user typed; a bound text is asked again on every paint all the same.
	FText EditedText;
	bool bHasEditedText = false;
};
