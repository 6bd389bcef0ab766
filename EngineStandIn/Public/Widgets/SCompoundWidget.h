#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/SWidget.h"

// A widget made of other widgets, held in its one child slot.
class SLATECORE_API SCompoundWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override { return &ChildSlot; }

protected:
	SCompoundWidget()
		: ChildSlot(this) {}

	FSimpleSlot ChildSlot;
};
