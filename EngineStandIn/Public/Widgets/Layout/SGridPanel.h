#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

// Slots placed by column and row; a row or column without slots takes no space.
class SLATE_API SGridPanel : public SPanel
{
public:
	class Layer
	{
	public:
		explicit Layer(int32 InLayer)
			: TheLayer(InLayer) {}
		int32 TheLayer;
	};

	class FSlot : public TSlotBase<FSlot>, public TSupportsContentPaddingMixin<FSlot>
	{
	public:
		FSlot(int32 Column, int32 Row, int32 InLayer)
			: ColumnParam(Column), RowParam(Row), LayerParam(InLayer) {}

		int32 ColumnParam;
		int32 RowParam;
		int32 LayerParam;
	};

	static FSlot& Slot(int32 Column, int32 Row, Layer InLayer = Layer(0)) { return *(new FSlot(Column, Row, InLayer.TheLayer)); }

	// clang-format off
	SLATE_BEGIN_ARGS(SGridPanel) {}
		SLATE_SUPPORTS_SLOT(SGridPanel::FSlot)
	SLATE_END_ARGS()
	// clang-format on

	SGridPanel()
		: Slots(this) {}

	void Construct(const FArguments& InArgs);
	virtual FChildren* GetChildren() override { return &Slots; }

private:
	TPanelChildren<FSlot> Slots;
};
