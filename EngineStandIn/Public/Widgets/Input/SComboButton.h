#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SMenuAnchor.h"

namespace StandIn
{
	class FComboButtonInspector;
}

// A button whose click opens a menu.
class SLATE_API SComboButton : public SMenuAnchor
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
};
