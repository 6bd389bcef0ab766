#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

namespace StandIn
{
	class FBoxInspector;
}

// Holds one widget at a size of its choosing.
class SLATE_API SBox : public SPanel
{
public:
	class FBoxSlot : public TSupportsOneChildMixin<FBoxSlot>, public TSupportsContentPaddingMixin<FBoxSlot>
	{
	public:
		FBoxSlot(SWidget* InOwner)
			: TSupportsOneChildMixin<FBoxSlot>(InOwner) {}
	};

	// clang-format off
	SLATE_BEGIN_ARGS(SBox)
		: _Content(), _Padding(FMargin(0.0f)), _WidthOverride(FOptionalSize()), _HeightOverride(FOptionalSize()) {}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
		SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
	SLATE_END_ARGS()
	// clang-format on

	SBox();

	void Construct(const FArguments& InArgs);

	virtual FChildren* GetChildren() override;

protected:
	FBoxSlot ChildSlot;

private:
	friend class StandIn::FBoxInspector;

	TAttribute<FOptionalSize> WidthOverride;
	TAttribute<FOptionalSize> HeightOverride;
};
