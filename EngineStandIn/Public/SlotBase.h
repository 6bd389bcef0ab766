#pragma once

#include "CoreMinimal.h"
#include "Widgets/SNullWidget.h"

class SWidget;

class SLATECORE_API FSlotBase
{
public:
	FSlotBase();
	virtual ~FSlotBase() {}

	void AttachWidget(const TSharedRef<SWidget>& InWidget) { Widget = InWidget; }
	const TSharedRef<SWidget>& GetWidget() const { return Widget; }

private:
	TSharedRef<SWidget> Widget;
};

template <typename SlotType>
class TSlotBase : public FSlotBase
{
public:
	SlotType& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		this->AttachWidget(InChildWidget);
		return static_cast<SlotType&>(*this);
	}
};
