#pragma once

// Inspectors: for each kind of widget and of slot, the one place that reads its private state (as the
// friend its class names) and takes the input a user gives it. A new kind is one file beside this one,
// registered in Registry.cpp.
#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Layout/Children.h"
#include "StandIn/WidgetTree.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Widgets/SWidget.h"
#include <memory>
#include <vector>

class SWindow;

namespace StandIn
{
	class FWindowRecord;

	class FWidgetInspector
	{
	public:
		virtual ~FWidgetInspector() = default;

		virtual bool Inspects(SWidget& Widget) const = 0;
		// Fills in what a paint of the widget shows; bound attributes are asked again.
		virtual void Paint(SWidget& Widget, FPaintedWidget& Painted) const {}
		// Whether the widget shows a text of its own rather than its children's.
		virtual bool ShowsText(SWidget& Widget) const { return false; }
	};

	template <typename WidgetType>
	class TWidgetInspector : public FWidgetInspector
	{
	public:
		virtual bool Inspects(SWidget& Widget) const override { return dynamic_cast<WidgetType*>(&Widget) != nullptr; }

	protected:
		static WidgetType& As(SWidget& Widget) { return static_cast<WidgetType&>(Widget); }
	};

	// The input a kind of widget takes: its inspector implements the interfaces of that input.
	class IClickInput
	{
	public:
		virtual ~IClickInput() = default;
		virtual FReply Click(SWidget& Button) const = 0;
	};

	class ICheckInput
	{
	public:
		virtual ~ICheckInput() = default;
		virtual void Click(SWidget& CheckBox) const = 0;
		virtual void ChangeState(SWidget& CheckBox, ECheckBoxState NewState) const = 0;
	};

	class IMenuInput
	{
	public:
		virtual ~IMenuInput() = default;
		virtual std::vector<TSharedRef<SWidget>> Open(SWidget& ComboBox) const = 0;
		// False when there is no such row.
		virtual bool ClickRow(SWidget& ComboBox, int32 RowIndex) const = 0;
		virtual void ClearSelection(SWidget& ComboBox) const = 0;
	};

	class IListInput
	{
	public:
		virtual ~IListInput() = default;
		// False when no row shows the text.
		virtual bool SelectRow(SWidget& List, const FString& ShownRowText) const = 0;
	};

	// What a menu shows and the clicks it takes.
	class IMultiBoxInput
	{
	public:
		virtual ~IMultiBoxInput() = default;
		virtual std::vector<FMenuEntry> Entries(SWidget& Menu) const = 0;
		// The entry at this index of Entries().
		virtual void ClickEntry(SWidget& Menu, size_t EntryIndex) const = 0;
		// The content of the sub-menu or the drop-down at this index of Entries(), built now; null for
		// other entries.
		virtual TSharedPtr<SWidget> OpenEntry(SWidget& Menu, size_t EntryIndex) const = 0;
	};

	class ITextInput
	{
	public:
		virtual ~ITextInput() = default;
		// False, with nothing changed, when the text is read-only.
		virtual bool Commit(SWidget& TextWidget, const FText& Text, ETextCommit::Type CommitType) const = 0;
	};

	class FSlotInspector
	{
	public:
		virtual ~FSlotInspector() = default;

		virtual bool Inspects(const FSlotBase& Slot) const = 0;
		// Fills in the padding, fill, column and row that the slot holds.
		virtual void Read(const FSlotBase& Slot, FChildSlot& Child) const = 0;

		// FChildren keeps its slots to itself and its friends; this class is one.
		static const FSlotBase& SlotAt(const FChildren& Children, int32 Index) { return Children.GetSlotAt(Index); }
	};

	template <typename SlotType>
	class TSlotInspector : public FSlotInspector
	{
	public:
		virtual bool Inspects(const FSlotBase& Slot) const override { return dynamic_cast<const SlotType*>(&Slot) != nullptr; }

	protected:
		static const SlotType& As(const FSlotBase& Slot) { return static_cast<const SlotType&>(Slot); }
	};

	// Null for a kind that shows nothing of its own and takes no input (panels, borders, compound widgets).
	const FWidgetInspector* FindWidgetInspector(SWidget& Widget);
	const FSlotInspector* FindSlotInspector(const FSlotBase& Slot);

	// Beside the window's inspector: the record of a window handed to FSlateApplication::AddWindow.
	std::shared_ptr<FWindowRecord> RecordAddedWindow(const TSharedRef<SWindow>& Window, bool bShowImmediately);
}
