#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/SWidget.h"

// A widget that arranges any number of children in slots.
class SLATECORE_API SPanel : public SWidget
{
protected:
	SPanel() {}
};
