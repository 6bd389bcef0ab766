#include "Inspector.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SComboButton.h"

namespace StandIn
{
	// Every SComboBox<OptionType> is a combo button whose menu is its list of options.
	class FComboButtonInspector final : public TWidgetInspector<SComboButton>, public IMenuInput
	{
	public:
		virtual std::vector<TSharedRef<SWidget>> Open(SWidget& ComboBox) const override
		{
			SComboListView& List = ListOf(ComboBox);
			std::vector<TSharedRef<SWidget>> Rows;
			for (int32 Index = 0; Index < List.NumItems(); ++Index)
			{
				Rows.push_back(List.GenerateRow(Index));
			}
			return Rows;
		}

		virtual bool ClickRow(SWidget& ComboBox, int32 RowIndex) const override
		{
			SComboListView& List = ListOf(ComboBox);
			if (RowIndex < 0 || RowIndex >= List.NumItems())
			{
				return false;
			}
			List.ClickRow(RowIndex);
			return true;
		}

		virtual void ClearSelection(SWidget& ComboBox) const override { ListOf(ComboBox).ClearSelection(); }

	private:
		// A combo button with another menu than a combo box's list takes no such input.
		static SComboListView& ListOf(SWidget& ComboBox)
		{
			SComboListView* List = dynamic_cast<SComboListView*>(As(ComboBox).MenuContent.Get());
			check(List != nullptr);
			return *List;
		}
	};

	const FWidgetInspector& ComboButtonInspector()
	{
		static const FComboButtonInspector Inspector;
		return Inspector;
	}
}
