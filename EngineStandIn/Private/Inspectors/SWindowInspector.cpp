#include "Inspector.h"
#include "StandIn/Records/WindowRecord.h"
#include "Widgets/SWindow.h"

namespace StandIn
{
	class FWindowInspector final : public TWidgetInspector<SWindow>
	{
	public:
		virtual void Paint(SWidget& Widget, FPaintedWidget& Painted) const override { Painted.Text = As(Widget).Title.Get(); }

		static std::shared_ptr<FWindowRecord> Record(const TSharedRef<SWindow>& Window, bool bShowImmediately)
		{
			return std::make_shared<FWindowRecord>(Window, Window->Title.Get(), Window->InitialDesiredSize, Window->bHasMaximizeButton, Window->bHasMinimizeButton, bShowImmediately, Window->ChildSlot.GetWidget());
		}
	};

	const FWidgetInspector& WindowInspector()
	{
		static const FWindowInspector Inspector;
		return Inspector;
	}

	std::shared_ptr<FWindowRecord> RecordAddedWindow(const TSharedRef<SWindow>& Window, bool bShowImmediately)
	{
		return FWindowInspector::Record(Window, bShowImmediately);
	}
}
