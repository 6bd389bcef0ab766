#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"
#include <memory>
#include <vector>

class SMultiBoxWidget;

namespace StandIn
{
	struct FMultiBlock;
	class FMultiBoxWidgetInspector;
}

// The blocks of a menu or tool bar (entries, headings, separators) in the order they were added, as a
// builder leaves them for the widget that shows them.
class SLATE_API FMultiBox : public TSharedFromThis<FMultiBox>
{
public:
	DECLARE_DELEGATE_TwoParams(FOnMakeMultiBoxBuilderOverride, const TSharedRef<FMultiBox>&, const TSharedRef<SMultiBoxWidget>&);

	virtual ~FMultiBox();

private:
	friend class FMultiBoxBuilder;
	friend class FBaseMenuBuilder;
	friend class FMenuBuilder;
	friend class FToolBarBuilder;
	friend class StandIn::FMultiBoxWidgetInspector;

	FMultiBox(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection);

	EMultiBoxType Type;
	bool bShouldCloseWindowAfterMenuSelection;
	std::vector<std::shared_ptr<const StandIn::FMultiBlock>> Blocks;
};

// Shows a multi-box. The stand-in draws nothing; its blocks are read and clicked from the control surface.
class SLATE_API SMultiBoxWidget : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SMultiBoxWidget) {}
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

	void SetMultiBox(TSharedRef<FMultiBox> InMultiBox) { MultiBox = InMultiBox; }

private:
	friend class StandIn::FMultiBoxWidgetInspector;

	TSharedPtr<FMultiBox> MultiBox;
};
