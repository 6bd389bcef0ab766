#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

// Draws the core style's border brush behind its content; the padding goes to the child slot.
class SLATE_API SBorder : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SBorder)
		: _Content(), _Padding(FMargin(2.0f)) {}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);
};
