#pragma once

#include "CoreMinimal.h"

class ISlateStyle;

// The process-wide registry of style sets by name; registering a name twice is fatal.
class SLATECORE_API FSlateStyleRegistry
{
public:
	static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const FName StyleSetName);
	static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);
};
