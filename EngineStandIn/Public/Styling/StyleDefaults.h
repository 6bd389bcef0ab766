#pragma once

#include "CoreMinimal.h"
#include "Brushes/SlateNoResource.h"

class SLATECORE_API FStyleDefaults
{
public:
	// What an optional brush falls back to: one that draws nothing.
	static const FSlateBrush* GetNoBrush()
	{
		static const FSlateNoResource NoBrush;
		return &NoBrush;
	}
};
