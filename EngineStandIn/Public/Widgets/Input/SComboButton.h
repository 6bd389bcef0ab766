#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

namespace StandIn
{
	class FComboButtonInspector;
}

// A button whose click opens a menu. The stand-in shows no popups: the menu content is kept, and opened
// and used from the control surface, as a user's clicks would.
class SLATE_API SComboButton : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SComboButton) {}
		SLATE_NAMED_SLOT(FArguments, ButtonContent)
		SLATE_NAMED_SLOT(FArguments, MenuContent)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

private:
	friend class StandIn::FComboButtonInspector;

	TSharedPtr<SWidget> MenuContent;
};
