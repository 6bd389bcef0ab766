#include "../PluginBrowser/SPluginTemplateList.h"
#include "Inspector.h"

namespace StandIn
{
	class FPluginTemplateListInspector final : public TWidgetInspector<SPluginTemplateList>, public IListInput
	{
	public:
		virtual void Paint(SWidget& Widget, FPaintedWidget& Painted) const override
		{
			const SPluginTemplateList& List = As(Widget);
			for (const TSharedRef<FPluginTemplateDescription>& Item : *List.Items)
			{
				Painted.ListRows.push_back(Item->Name);
			}
			for (const TSharedRef<FPluginTemplateDescription>& Item : List.SelectedItems)
			{
				Painted.SelectedListRows.push_back(Item->Name);
			}
		}

		virtual bool SelectRow(SWidget& Widget, const FString& ShownRowText) const override
		{
			SPluginTemplateList& List = As(Widget);
			for (const TSharedRef<FPluginTemplateDescription>& Item : *List.Items)
			{
				if (Item->Name.ToString().Equals(ShownRowText, ESearchCase::CaseSensitive))
				{
					List.ClickRow(Item);
					return true;
				}
			}
			return false;
		}
	};

	const FWidgetInspector& PluginTemplateListInspector()
	{
		static const FPluginTemplateListInspector Inspector;
		return Inspector;
	}
}
