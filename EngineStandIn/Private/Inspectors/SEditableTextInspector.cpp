#include "Inspector.h"
#include "Widgets/Input/SEditableText.h"

namespace StandIn
{
	class FEditableTextInspector final : public TWidgetInspector<SEditableText>, public ITextInput
	{
	public:
		virtual void Paint(SWidget& Widget, FPaintedWidget& Painted) const override
		{
			const SEditableText& Text = As(Widget);
			Painted.bTextIsBound = Text.BoundText.IsBound();
			Painted.Text = Text.bHasEditedText && !Painted.bTextIsBound ? Text.EditedText : Text.BoundText.Get();
			if (Text.Font.IsSet())
			{
				Painted.Font = Text.Font.Get();
			}
			if (Text.ColorAndOpacity.IsSet())
			{
				Painted.ColorAndOpacity = Text.ColorAndOpacity.Get();
			}
			Painted.bIsReadOnly = Text.IsReadOnly.Get();
		}

		virtual bool ShowsText(SWidget& Widget) const override { return true; }

		virtual bool Commit(SWidget& Widget, const FText& NewText, ETextCommit::Type CommitType) const override
		{
			SEditableText& Text = As(Widget);
			if (Text.IsReadOnly.Get())
			{
				return false;
			}
			Text.EditedText = NewText;
			Text.bHasEditedText = true;
			return true;
		}
	};

	const FWidgetInspector& EditableTextInspector()
	{
		static const FEditableTextInspector Inspector;
		return Inspector;
	}
}
