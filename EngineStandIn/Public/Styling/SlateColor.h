#pragma once

#include "CoreMinimal.h"

struct FSlateColor
{
	// The engine's default: magenta, so that a colour nobody chose stands out.
	FSlateColor()
		: SpecifiedColor(FLinearColor(1.0f, 0.0f, 1.0f)) {}
	FSlateColor(const FLinearColor& InColor)
		: SpecifiedColor(InColor) {}

	FLinearColor GetSpecifiedColor() const { return SpecifiedColor; }

private:
	FLinearColor SpecifiedColor;
};
