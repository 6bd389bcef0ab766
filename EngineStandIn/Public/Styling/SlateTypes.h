#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateWidgetStyle.h"

enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked,
	Undetermined
};

// The stand-in draws nothing, so a button style is only told apart by which one it is.
struct SLATECORE_API FButtonStyle : public FSlateWidgetStyle
{
	static const FName TypeName;
	static const FButtonStyle& GetDefault();
};
