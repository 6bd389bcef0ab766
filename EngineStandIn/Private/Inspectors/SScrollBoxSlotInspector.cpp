#include "Inspector.h"
#include "Widgets/Layout/SScrollBox.h"

namespace StandIn
{
	class FScrollBoxSlotInspector final : public TSlotInspector<SScrollBox::FSlot>
	{
	public:
		virtual void Read(const FSlotBase& Slot, FChildSlot& Child) const override { Child.Padding = As(Slot).SlotPadding.Get(); }
	};

	const FSlotInspector& ScrollBoxSlotInspector()
	{
		static const FScrollBoxSlotInspector Inspector;
		return Inspector;
	}
}
