#include "Inspector.h"
#include "Layout/Children.h"

namespace StandIn
{
	// The one slot of a compound widget (its ChildSlot), a border's included.
	class FSimpleSlotInspector final : public TSlotInspector<FSimpleSlot>
	{
	public:
		virtual void Read(const FSlotBase& Slot, FChildSlot& Child) const override { Child.Padding = As(Slot).SlotPadding.Get(); }
	};

	const FSlotInspector& SimpleSlotInspector()
	{
		static const FSimpleSlotInspector Inspector;
		return Inspector;
	}
}
