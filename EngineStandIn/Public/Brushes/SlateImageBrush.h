#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

struct SLATECORE_API FSlateImageBrush : public FSlateBrush
{
	FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}
};
