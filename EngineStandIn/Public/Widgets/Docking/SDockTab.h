#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/TabManager.h"
#include "Misc/Attribute.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

namespace StandIn
{
	class FTabManagerAccess;
}

enum ETabRole : uint8
{
	MajorTab,
	PanelTab,
	NomadTab,
	DocumentTab,
	NumRoles
};

// A tab of a docking area or of a floating window of its own.
class SLATE_API SDockTab : public SBorder
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SDockTab)
		: _Content(), _TabRole(ETabRole::PanelTab), _Label() {}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(ETabRole, TabRole)
		SLATE_ATTRIBUTE(FText, Label)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);
	void SetContent(TSharedRef<SWidget> InContent);

	// Closes the tab; false when it was already closed.
	bool RequestCloseTab();

	ETabRole GetTabRole() const { return TabRole; }
	FText GetTabLabel() const { return TabLabel.Get(); }

private:
	friend class StandIn::FTabManagerAccess;

	ETabRole TabRole = ETabRole::PanelTab;
	TAttribute<FText> TabLabel;
	bool bIsOpen = false;
};
