#include "Inspector.h"
#include "Widgets/Input/SButton.h"

namespace StandIn
{
	class FButtonInspector final : public TWidgetInspector<SButton>, public IClickInput
	{
	public:
		virtual void Paint(SWidget& Widget, FPaintedWidget& Painted) const override
		{
			const SButton& Button = As(Widget);
			Painted.Text = Button.Text.Get();
			Painted.bTextIsBound = Button.Text.IsBound();
			Painted.ButtonStyle = Button.Style;
		}

		// A button given content shows that instead of a caption.
		virtual bool ShowsText(SWidget& Widget) const override { return As(Widget).Text.IsSet(); }

		virtual FReply Click(SWidget& Button) const override { return As(Button).ExecuteOnClick(); }
	};

	const FWidgetInspector& ButtonInspector()
	{
		static const FButtonInspector Inspector;
		return Inspector;
	}
}
