#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

// A brush that draws nothing.
struct SLATECORE_API FSlateNoResource : public FSlateBrush
{
	FSlateNoResource(const FVector2D& InImageSize = FVector2D(0.0f, 0.0f))
		: FSlateBrush(ESlateBrushDrawType::NoDrawType, FName(NAME_None), FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, InImageSize)
	{
	}
};
