#include "Inspector.h"
#include "Widgets/Input/SCheckBox.h"

namespace StandIn
{
	class FCheckBoxInspector final : public TWidgetInspector<SCheckBox>, public ICheckInput
	{
	public:
		virtual void Paint(SWidget& Widget, FPaintedWidget& Painted) const override { Painted.CheckState = As(Widget).IsCheckboxChecked.Get(); }

		virtual void Click(SWidget& CheckBox) const override { As(CheckBox).ToggleCheckedState(); }

		// As the box reports a change it makes itself: unbound, it keeps the new state; the event carries any
		// state, undetermined included.
		virtual void ChangeState(SWidget& Widget, ECheckBoxState NewState) const override
		{
			SCheckBox& CheckBox = As(Widget);
			if (!CheckBox.IsCheckboxChecked.IsBound())
			{
				CheckBox.IsCheckboxChecked.Set(NewState);
			}
			CheckBox.OnCheckStateChanged.ExecuteIfBound(NewState);
		}
	};

	const FWidgetInspector& CheckBoxInspector()
	{
		static const FCheckBoxInspector Inspector;
		return Inspector;
	}
}
