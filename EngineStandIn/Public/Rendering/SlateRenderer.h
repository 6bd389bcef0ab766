#pragma once

#include "CoreMinimal.h"

class SLATECORE_API FSlateRenderer
{
public:
	virtual ~FSlateRenderer() {}

	// Loads every texture again from its file.
	virtual void ReloadTextureResources() {}
};
