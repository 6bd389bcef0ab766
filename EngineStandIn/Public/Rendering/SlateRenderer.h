#pragma once

#include "CoreMinimal.h"

class SLATECORE_API FSlateRenderer
{
public:
	virtual ~FSlateRenderer() {}

	// Loads every texture again from its file.
	virtual void ReloadTextureResources() {}

	// Loads the image file that the name gives; its size, or 0 by 0 when it does not load.
	virtual FIntPoint GenerateDynamicImageResource(const FName InTextureName)
	{
		check(0);
		return FIntPoint(0, 0);
	}
};
