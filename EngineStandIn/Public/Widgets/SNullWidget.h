#pragma once

#include "CoreMinimal.h"

class SWidget;

class SLATECORE_API SNullWidget
{
public:
	// What an empty slot holds.
	static TSharedRef<SWidget> NullWidget;
};
