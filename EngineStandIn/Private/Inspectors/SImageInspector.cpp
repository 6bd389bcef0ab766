#include "Inspector.h"
#include "Widgets/Images/SImage.h"

namespace StandIn
{
	class FImageInspector final : public TWidgetInspector<SImage>
	{
	public:
		virtual void Paint(SWidget& Widget, FPaintedWidget& Painted) const override { Painted.Image = As(Widget).Image.Get(); }
	};

	const FWidgetInspector& ImageInspector()
	{
		static const FImageInspector Inspector;
		return Inspector;
	}
}
