#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

// A brush of an image that the renderer loaded at run time (GenerateDynamicImageResource), by its resource name.
struct SLATECORE_API FSlateDynamicImageBrush : public FSlateBrush, public TSharedFromThis<FSlateDynamicImageBrush>
{
	FSlateDynamicImageBrush(const FName InTextureName, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, InTextureName, FMargin(0.0f), InTiling, InImageType, InImageSize, InTint, nullptr, true)
	{
	}
};
