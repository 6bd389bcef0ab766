#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Layout/Margin.h"
#include "SlotBase.h"
#include "Types/SlateEnums.h"
#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

class SLATECORE_API SBoxPanel : public SPanel
{
public:
	class FSlot : public TSlotBase<FSlot>
	{
	public:
		virtual ~FSlot() {}

		FSizeParam SizeParam;
		TAttribute<FMargin> SlotPadding;

	protected:
		// Slots stretch with a coefficient of 1 unless told otherwise.
		FSlot()
			: SizeParam(FStretch(1)), SlotPadding(FMargin(0)) {}
	};

	void ClearChildren();

	virtual FChildren* GetChildren() override { return &Children; }

protected:
	SBoxPanel(EOrientation InOrientation)
		: Children(this), Orientation(InOrientation) {}

	TPanelChildren<FSlot> Children;
	const EOrientation Orientation;
};

class SLATECORE_API SHorizontalBox : public SBoxPanel
{
public:
	class FSlot : public SBoxPanel::FSlot
	{
	public:
		FSlot& FillWidth(const TAttribute<float>& StretchCoefficient)
		{
			SizeParam = FStretch(StretchCoefficient);
			return *this;
		}

		FSlot& Padding(float Uniform)
		{
			SlotPadding = FMargin(Uniform);
			return *this;
		}

		FSlot& operator[](TSharedRef<SWidget> InWidget)
		{
			SBoxPanel::FSlot::operator[](InWidget);
			return *this;
		}
	};

	static FSlot& Slot() { return *(new FSlot()); }

	SHorizontalBox()
		: SBoxPanel(Orient_Horizontal) {}

	// clang-format off
	SLATE_BEGIN_ARGS(SHorizontalBox) {}
		SLATE_SUPPORTS_SLOT(SHorizontalBox::FSlot)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);
};

class SLATECORE_API SVerticalBox : public SBoxPanel
{
public:
	class FSlot : public SBoxPanel::FSlot
	{
	public:
		FSlot& Padding(float Uniform)
		{
			SlotPadding = FMargin(Uniform);
			return *this;
		}

		FSlot& AutoHeight()
		{
			SizeParam = FAuto();
			return *this;
		}

		FSlot& operator[](TSharedRef<SWidget> InWidget)
		{
			SBoxPanel::FSlot::operator[](InWidget);
			return *this;
		}
	};

	static FSlot& Slot() { return *(new FSlot()); }

	// clang-format off
	SLATE_BEGIN_ARGS(SVerticalBox) {}
		SLATE_SUPPORTS_SLOT(SVerticalBox::FSlot)
	SLATE_END_ARGS()
	// clang-format on

	FSlot& AddSlot()
	{
		FSlot& NewSlot = *new FSlot();
		Children.Add(&NewSlot);
		return NewSlot;
	}

	int32 NumSlots() const { return Children.Num(); }

	SVerticalBox()
		: SBoxPanel(Orient_Vertical) {}

	void Construct(const FArguments& InArgs);
};
