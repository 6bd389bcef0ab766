#pragma once

// Path forms the stand-in's units share; not part of the control surface.
#include "CoreMinimal.h"

namespace StandInPaths
{
	// An absolute folder as the engine reports it: relative to the binaries folder when a folder that holds
	// the engine (at worst the drive) also holds it, absolute otherwise; with a trailing '/'.
	FString RelativeToBaseDir(const FString& AbsoluteFolder);
}
