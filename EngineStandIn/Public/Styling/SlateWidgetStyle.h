#pragma once

#include "CoreMinimal.h"

struct SLATECORE_API FSlateWidgetStyle
{
	virtual ~FSlateWidgetStyle() {}
};
