#pragma once

#include "CoreMinimal.h"

struct SLATECORE_API FSlateWidgetStyle
{
	virtual ~FSlateWidgetStyle() {}
	virtual const FName GetTypeName() const = 0;
};
