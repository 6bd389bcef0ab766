#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateColor.h"

namespace ESlateBrushDrawType
{
	enum Type
	{
		NoDrawType,
		Box,
		Border,
		Image
	};
}

namespace ESlateBrushTileType
{
	enum Type
	{
		NoTile,
		Horizontal,
		Vertical,
		Both
	};
}

namespace ESlateBrushImageType
{
	enum Type
	{
		NoImage,
		FullColor,
		Linear,
	};
}

// How to draw an image: the resource is named by its file path and loaded when first drawn.
struct SLATECORE_API FSlateBrush
{
public:
	FVector2D ImageSize;
	FSlateColor TintColor;

	virtual ~FSlateBrush() {}

	FVector2D GetImageSize() const { return ImageSize; }
	ESlateBrushTileType::Type GetTiling() const { return Tiling; }
	ESlateBrushImageType::Type GetImageType() const { return ImageType; }
	ESlateBrushDrawType::Type GetDrawType() const { return DrawAs; }
	const FName GetResourceName() const { return ResourceName; }
	bool IsDynamicallyLoaded() const { return bIsDynamicallyLoaded; }

protected:
	FName ResourceName;
	// Its image is made at run time; the renderer does not load it with the style.
	uint8 bIsDynamicallyLoaded : 1;

public:
	ESlateBrushDrawType::Type DrawAs;
	ESlateBrushTileType::Type Tiling;
	ESlateBrushImageType::Type ImageType;

protected:
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor::White)
		: ImageSize(InImageSize), TintColor(InTint), ResourceName(InResourceName), bIsDynamicallyLoaded(false), DrawAs(InDrawType), Tiling(InTiling), ImageType(InImageType)
	{
	}
};
