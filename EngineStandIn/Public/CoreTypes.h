#pragma once

#include "HAL/Platform.h"

// The engine keeps this in Misc/CoreMiscDefines.h, which CoreTypes.h includes and which cannot be included
// on its own.
enum
{
	INDEX_NONE = -1
};
