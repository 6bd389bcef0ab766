#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Layout/Margin.h"
#include "SlotBase.h"
#include "Widgets/SWidget.h"
#include <memory>
#include <vector>

namespace StandIn
{
	class FSlotInspector;
}

// The children of one widget, each in a slot of the widget's own kind.
class SLATECORE_API FChildren
{
public:
	explicit FChildren(SWidget* InOwner)
		: Owner(InOwner) {}
	virtual ~FChildren() {}

	virtual int32 Num() const = 0;
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) = 0;
	virtual TSharedRef<const SWidget> GetChildAt(int32 Index) const = 0;

protected:
	friend class StandIn::FSlotInspector;
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const = 0;

	SWidget* Owner;
};

class SLATECORE_API FNoChildren : public FChildren
{
public:
	FNoChildren()
		: FChildren(nullptr) {}

	virtual int32 Num() const override { return 0; }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) override;
	virtual TSharedRef<const SWidget> GetChildAt(int32 Index) const override;

private:
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override;
};

template <typename SlotType>
class TSupportsContentPaddingMixin
{
public:
	SlotType& Padding(const TAttribute<FMargin> InPadding)
	{
		SlotPadding = InPadding;
		return *(static_cast<SlotType*>(this));
	}
	SlotType& Padding(float Uniform)
	{
		SlotPadding = FMargin(Uniform);
		return *(static_cast<SlotType*>(this));
	}

	TAttribute<FMargin> SlotPadding;
};

// A widget with exactly one child: the slot is the children.
template <typename MixedIntoType>
class TSupportsOneChildMixin : public FChildren, public TSlotBase<MixedIntoType>
{
public:
	explicit TSupportsOneChildMixin(SWidget* InOwner)
		: FChildren(InOwner) {}

	virtual int32 Num() const override { return 1; }
	virtual TSharedRef<SWidget> GetChildAt(int32 ChildIndex) override
	{
		check(ChildIndex == 0);
		return FSlotBase::GetWidget();
	}
	virtual TSharedRef<const SWidget> GetChildAt(int32 ChildIndex) const override
	{
		check(ChildIndex == 0);
		return FSlotBase::GetWidget();
	}

private:
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override
	{
		check(ChildIndex == 0);
		return *this;
	}
};

class SLATECORE_API FSimpleSlot : public TSupportsOneChildMixin<FSimpleSlot>, public TSupportsContentPaddingMixin<FSimpleSlot>
{
public:
	explicit FSimpleSlot(SWidget* InParent)
		: TSupportsOneChildMixin<FSimpleSlot>(InParent) {}
};

// The slots of a panel; the panel owns them.
template <typename SlotType>
class TPanelChildren : public FChildren
{
public:
	explicit TPanelChildren(SWidget* InOwner)
		: FChildren(InOwner) {}

	virtual int32 Num() const override { return (int32)Slots.size(); }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) override { return (*this)[Index].GetWidget(); }
	virtual TSharedRef<const SWidget> GetChildAt(int32 Index) const override { return (*this)[Index].GetWidget(); }

	int32 Add(SlotType* Slot)
	{
		Slots.emplace_back(Slot);
		return Num() - 1;
	}
	void Empty() { Slots.clear(); }
	SlotType& operator[](int32 Index)
	{
		check(Index >= 0 && Index < Num());
		return *Slots[(size_t)Index];
	}
	const SlotType& operator[](int32 Index) const
	{
		check(Index >= 0 && Index < Num());
		return *Slots[(size_t)Index];
	}

private:
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override { return (*this)[ChildIndex]; }

	std::vector<std::unique_ptr<SlotType>> Slots;
};
