#pragma once

#include "CoreMinimal.h"

class ISlateStyle;

class SLATECORE_API FSlateRenderer
{
public:
	virtual ~FSlateRenderer() {}

	// Loads every texture again from its file.
	virtual void ReloadTextureResources() {}

	// Loads the images of the style's brushes, each file once.
	virtual void LoadStyleResources(const ISlateStyle& Style) {}

	// Loads the image file that the name gives; its size, or 0 by 0 when it does not load.
	virtual FIntPoint GenerateDynamicImageResource(const FName InTextureName)
	{
		check(0);
		return FIntPoint(0, 0);
	}
};
