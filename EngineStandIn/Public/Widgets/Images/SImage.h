#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Styling/SlateBrush.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

namespace StandIn
{
	class FImageInspector;
}

// Draws a brush; a null brush draws nothing.
class SLATECORE_API SImage : public SWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SImage)
		: _Image() {}
		SLATE_ATTRIBUTE(const FSlateBrush*, Image)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

private:
	// A leaf of the tree: the engine keeps this out of reach of callers.
	virtual FChildren* GetChildren() override final { return &NoChildren; }

	friend class StandIn::FImageInspector;

	TAttribute<const FSlateBrush*> Image;
	FNoChildren NoChildren;
};
