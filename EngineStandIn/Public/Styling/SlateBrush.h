#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Styling/SlateColor.h"

class UObject;

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
	FMargin Margin;
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
	TEnumAsByte<enum ESlateBrushDrawType::Type> DrawAs;
	TEnumAsByte<enum ESlateBrushTileType::Type> Tiling;
	TEnumAsByte<enum ESlateBrushImageType::Type> ImageType;

protected:
	// The stand-in's brushes are drawn from files only: an object resource (a texture asset) is not kept.
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor::White, UObject* InObjectResource = nullptr, bool bInDynamicallyLoaded = false)
		: ImageSize(InImageSize), Margin(InMargin), TintColor(InTint), ResourceName(InResourceName), bIsDynamicallyLoaded(bInDynamicallyLoaded), DrawAs(InDrawType), Tiling(InTiling), ImageType(InImageType)
	{
	}
};
