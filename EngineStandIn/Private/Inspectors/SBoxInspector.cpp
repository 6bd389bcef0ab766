#include "Inspector.h"
#include "Widgets/Layout/SBox.h"

namespace StandIn
{
	class FBoxInspector final : public TWidgetInspector<SBox>
	{
	public:
		virtual void Paint(SWidget& Widget, FPaintedWidget& Painted) const override
		{
			const SBox& Box = As(Widget);
			const FOptionalSize Width = Box.WidthOverride.Get();
			const FOptionalSize Height = Box.HeightOverride.Get();
			if (Width.IsSet())
			{
				Painted.WidthOverride = Width.Get();
			}
			if (Height.IsSet())
			{
				Painted.HeightOverride = Height.Get();
			}
		}
	};

	const FWidgetInspector& BoxInspector()
	{
		static const FBoxInspector Inspector;
		return Inspector;
	}
}
