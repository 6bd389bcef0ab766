#include "Inspector.h"
#include "Widgets/Input/SEditableTextBox.h"

namespace StandIn
{
	class FEditableTextBoxInspector final : public TWidgetInspector<SEditableTextBox>, public ITextInput
	{
	public:
		virtual void Paint(SWidget& Widget, FPaintedWidget& Painted) const override
		{
			const SEditableTextBox& TextBox = As(Widget);
			Painted.Text = TextBox.EditedText;
			Painted.HintText = TextBox.HintText.Get();
			Painted.ErrorText = TextBox.ErrorText;
		}

		virtual bool ShowsText(SWidget& Widget) const override { return true; }

		virtual bool Commit(SWidget& Widget, const FText& Text, ETextCommit::Type CommitType) const override
		{
			SEditableTextBox& TextBox = As(Widget);
			TextBox.EditedText = Text;
			TextBox.OnTextChanged.ExecuteIfBound(Text);
			TextBox.OnTextCommitted.ExecuteIfBound(Text, CommitType);
			return true;
		}
	};

	const FWidgetInspector& EditableTextBoxInspector()
	{
		static const FEditableTextBoxInspector Inspector;
		return Inspector;
	}
}
