#include "Inspector.h"
#include "Widgets/Layout/SGridPanel.h"

namespace StandIn
{
	class FGridPanelSlotInspector final : public TSlotInspector<SGridPanel::FSlot>
	{
	public:
		virtual void Read(const FSlotBase& Slot, FChildSlot& Child) const override
		{
			const SGridPanel::FSlot& GridSlot = As(Slot);
			Child.Padding = GridSlot.SlotPadding.Get();
			Child.Column = GridSlot.ColumnParam;
			Child.Row = GridSlot.RowParam;
		}
	};

	const FSlotInspector& GridPanelSlotInspector()
	{
		static const FGridPanelSlotInspector Inspector;
		return Inspector;
	}
}
