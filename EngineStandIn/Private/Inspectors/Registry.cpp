#include "Inspector.h"

namespace StandIn
{
	// Each defined in the file of the same name beside this one.
	const FWidgetInspector& BoxInspector();
	const FWidgetInspector& ButtonInspector();
	const FWidgetInspector& CheckBoxInspector();
	const FWidgetInspector& ComboButtonInspector();
	const FWidgetInspector& EditableTextInspector();
	const FWidgetInspector& EditableTextBoxInspector();
	const FWidgetInspector& ImageInspector();
	const FWidgetInspector& PluginTemplateListInspector();
	const FWidgetInspector& MultiBoxWidgetInspector();
	const FWidgetInspector& WindowInspector();

	const FSlotInspector& BoxPanelSlotInspector();
	const FSlotInspector& GridPanelSlotInspector();
	const FSlotInspector& ScrollBoxSlotInspector();
	const FSlotInspector& SimpleSlotInspector();

	// The first inspector that inspects a widget is its kind's, so a kind derived from another listed kind
	// comes before it.
	const FWidgetInspector* FindWidgetInspector(SWidget& Widget)
	{
		static const std::vector<const FWidgetInspector*> Inspectors = {
			&BoxInspector(),
			&ButtonInspector(),
			&CheckBoxInspector(),
			&ComboButtonInspector(),
			&EditableTextInspector(),
			&EditableTextBoxInspector(),
			&ImageInspector(),
			&PluginTemplateListInspector(),
			&MultiBoxWidgetInspector(),
			&WindowInspector(),
		};
		for (const FWidgetInspector* Inspector : Inspectors)
		{
			if (Inspector->Inspects(Widget))
			{
				return Inspector;
			}
		}
		return nullptr;
	}

	const FSlotInspector* FindSlotInspector(const FSlotBase& Slot)
	{
		static const std::vector<const FSlotInspector*> Inspectors = {
			&BoxPanelSlotInspector(),
			&GridPanelSlotInspector(),
			&ScrollBoxSlotInspector(),
			&SimpleSlotInspector(),
		};
		for (const FSlotInspector* Inspector : Inspectors)
		{
			if (Inspector->Inspects(Slot))
			{
				return Inspector;
			}
		}
		return nullptr;
	}
}
