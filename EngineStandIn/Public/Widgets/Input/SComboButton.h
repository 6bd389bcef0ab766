#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

// A button whose click opens a menu. The stand-in shows no popups: its menu is opened and a row chosen
// from the control surface, as a user's clicks would.
class SLATE_API SComboButton : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SComboButton) {}
		SLATE_NAMED_SLOT(FArguments, ButtonContent)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

private:
	friend struct FStandInSlateAccess;

	// The rows of the menu, made as it opens.
	virtual TArray<TSharedRef<SWidget>> StandInOpenMenu() { return TArray<TSharedRef<SWidget>>(); }
	// A click on a row of the open menu; false if there is no such row.
	virtual bool StandInClickMenuRow(int32 RowIndex) { return false; }
};
