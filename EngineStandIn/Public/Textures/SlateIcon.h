#pragma once

#include "CoreMinimal.h"

struct FSlateBrush;
class ISlateStyle;

// An icon named by a style set and a style in it, looked up when it is drawn.
struct SLATECORE_API FSlateIcon
{
	// No icon.
	FSlateIcon();
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName);

	// The set's brush of that name; the no-brush when the set or the name is unknown.
	const FSlateBrush* GetIcon() const;
	const FName& GetStyleName() const { return StyleName; }
	const ISlateStyle* GetStyleSet() const;
	const FName& GetStyleSetName() const { return StyleSetName; }
	const bool IsSet() const { return bIsSet; }

private:
	FName StyleSetName;
	FName StyleName;
	bool bIsSet;
};
