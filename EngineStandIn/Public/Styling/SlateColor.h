#pragma once

#include "CoreMinimal.h"

namespace ESlateColorStylingMode
{
	enum Type
	{
		UseColor_Specified,
		UseColor_Specified_Link,
		UseColor_Foreground,
		UseColor_Foreground_Subdued
	};
}

struct FSlateColor
{
	// The engine's default: magenta, so that a colour nobody chose stands out.
	FSlateColor()
		: SpecifiedColor(FLinearColor(1.0f, 0.0f, 1.0f)), ColorUseRule(ESlateColorStylingMode::UseColor_Specified) {}
	FSlateColor(const FLinearColor& InColor)
		: SpecifiedColor(InColor), ColorUseRule(ESlateColorStylingMode::UseColor_Specified) {}

	const FLinearColor& GetSpecifiedColor() const { return SpecifiedColor; }
	bool IsColorSpecified() const { return ColorUseRule == ESlateColorStylingMode::UseColor_Specified; }

private:
	FLinearColor SpecifiedColor;
	ESlateColorStylingMode::Type ColorUseRule;
};
