#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

// How a box slot takes its share of the box: as much as its content wants, or a share of what is left.
struct FSizeParam
{
	enum ESizeRule
	{
		SizeRule_Auto,
		SizeRule_Stretch
	};

	ESizeRule SizeRule;
	TAttribute<float> Value;

protected:
	FSizeParam(ESizeRule InTypeOfSize, const TAttribute<float>& InValue)
		: SizeRule(InTypeOfSize), Value(InValue) {}
};

struct FStretch : public FSizeParam
{
	FStretch(const TAttribute<float>& StretchAmount)
		: FSizeParam(SizeRule_Stretch, StretchAmount) {}
	FStretch()
		: FSizeParam(SizeRule_Stretch, 1.0f) {}
};

struct FAuto : public FSizeParam
{
	FAuto()
		: FSizeParam(SizeRule_Auto, 0.0f) {}
};

class SLATECORE_API SBoxPanel : public SPanel
{
public:
	// Slots stretch with a coefficient of 1 unless told otherwise.
	class FSlot : public TSlotBase<FSlot>, public TSupportsContentPaddingMixin<FSlot>
	{
	public:
		FSlot()
			: SizeParam(FStretch(1.0f)) {}

		FSizeParam SizeParam;
	};

	virtual FChildren* GetChildren() override { return &Children; }

	int32 NumSlots() const { return Children.Num(); }
	void ClearChildren();

protected:
	SBoxPanel()
		: Children(this) {}

	template <typename SlotType>
	SlotType& AddNewSlot()
	{
		SlotType& NewSlot = *(new SlotType());
		Children.Add(&NewSlot);
		return NewSlot;
	}

	template <typename SlotType>
	void AddArgumentSlots(const TArray<SlotType*>& Slots)
	{
		for (SlotType* Slot : Slots)
		{
			Children.Add(Slot);
		}
	}

	TPanelChildren<FSlot> Children;
};

// The setters both boxes' slots share, returning the box's own slot type so that calls can be chained.
template <typename SlotType>
class TBoxSlot : public SBoxPanel::FSlot
{
public:
	SlotType& Padding(float Uniform)
	{
		SlotPadding = FMargin(Uniform);
		return Self();
	}
	SlotType& Padding(const TAttribute<FMargin>& InPadding)
	{
		SlotPadding = InPadding;
		return Self();
	}
	SlotType& operator[](const TSharedRef<SWidget>& InWidget)
	{
		SBoxPanel::FSlot::operator[](InWidget);
		return Self();
	}

private:
	SlotType& Self() { return static_cast<SlotType&>(*this); }
};

class SLATECORE_API SHorizontalBox : public SBoxPanel
{
public:
	class FSlot : public TBoxSlot<FSlot>
	{
	public:
		FSlot& FillWidth(const TAttribute<float>& StretchCoefficient)
		{
			SizeParam = FStretch(StretchCoefficient);
			return *this;
		}
	};

	static FSlot& Slot() { return *(new FSlot()); }

	// clang-format off
	SLATE_BEGIN_ARGS(SHorizontalBox) {}
		SLATE_SUPPORTS_SLOT(SHorizontalBox::FSlot)
	SLATE_END_ARGS()
	// clang-format on

	FSlot& AddSlot() { return AddNewSlot<FSlot>(); }

	void Construct(const FArguments& InArgs) { AddArgumentSlots(InArgs.Slots); }
};

class SLATECORE_API SVerticalBox : public SBoxPanel
{
public:
	class FSlot : public TBoxSlot<FSlot>
	{
	};

	static FSlot& Slot() { return *(new FSlot()); }

	// clang-format off
	SLATE_BEGIN_ARGS(SVerticalBox) {}
		SLATE_SUPPORTS_SLOT(SVerticalBox::FSlot)
	SLATE_END_ARGS()
	// clang-format on

	FSlot& AddSlot() { return AddNewSlot<FSlot>(); }

	void Construct(const FArguments& InArgs) { AddArgumentSlots(InArgs.Slots); }
};
