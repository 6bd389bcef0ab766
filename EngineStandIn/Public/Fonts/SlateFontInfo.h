#pragma once

#include "CoreMinimal.h"

struct FFontOutlineSettings
{
	int32 OutlineSize;

	FFontOutlineSettings()
		: OutlineSize(0) {}
};

// A font of the style's composite font: the typeface within it and the size in points.
struct FSlateFontInfo
{
	FFontOutlineSettings OutlineSettings;
	FName TypefaceFontName;
	int32 Size;

	FSlateFontInfo()
		: Size(0) {}
};
