#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/SPanel.h"

// A widget that can open a menu beside its content. The stand-in opens no popup: the menu is kept for the
// control surface to open and click, as a user would.
class SLATE_API SMenuAnchor : public SPanel
{
public:
	SMenuAnchor();

protected:
	virtual FChildren* GetChildren() override;

	TSharedPtr<SWidget> MenuContent;
	TPanelChildren<FSimpleSlot> Children;
};
