#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateRenderer.h"

class SLATECORE_API FSlateApplicationBase
{
public:
	virtual ~FSlateApplicationBase() {}

	FSlateRenderer* GetRenderer() const;

	static FSlateApplicationBase& Get();
	static bool IsInitialized();
};
