#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

// The engine wraps the slots in a scroll panel with bars; the stand-in keeps the slots as the box's
// children, since it neither lays out nor scrolls.
class SLATE_API SScrollBox : public SCompoundWidget
{
public:
	class FSlot : public TSlotBase<FSlot>, public TSupportsContentPaddingMixin<FSlot>
	{
	};

	static FSlot& Slot() { return *(new FSlot()); }

	// clang-format off
	SLATE_BEGIN_ARGS(SScrollBox) {}
		SLATE_SUPPORTS_SLOT(SScrollBox::FSlot)
	SLATE_END_ARGS()
	// clang-format on

	SScrollBox()
		: Children(this) {}

	void Construct(const FArguments& InArgs);
	virtual FChildren* GetChildren() override { return &Children; }

private:
	TPanelChildren<FSlot> Children;
};
