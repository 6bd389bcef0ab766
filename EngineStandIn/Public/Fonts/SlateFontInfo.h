#pragma once

#include "CoreMinimal.h"

// The stand-in draws no outlines; the settings are only passed along with a font.
struct FFontOutlineSettings
{
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
