#pragma once

#include "CoreMinimal.h"

// A key with modifiers. The editor's commands have none, so only the empty chord is mirrored.
struct SLATE_API FInputChord
{
	FInputChord() {}
};
