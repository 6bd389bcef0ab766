#include "Inspector.h"
#include "Widgets/SBoxPanel.h"

namespace StandIn
{
	// The slots of both boxes.
	class FBoxPanelSlotInspector final : public TSlotInspector<SBoxPanel::FSlot>
	{
	public:
		virtual void Read(const FSlotBase& Slot, FChildSlot& Child) const override
		{
			const SBoxPanel::FSlot& BoxSlot = As(Slot);
			Child.Padding = BoxSlot.SlotPadding.Get();
			Child.Fill = BoxSlot.SizeParam.SizeRule == FSizeParam::SizeRule_Stretch ? BoxSlot.SizeParam.Value.Get() : 0.0f;
		}
	};

	const FSlotInspector& BoxPanelSlotInspector()
	{
		static const FBoxPanelSlotInspector Inspector;
		return Inspector;
	}
}
