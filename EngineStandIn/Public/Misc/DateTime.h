#pragma once

#include "CoreTypes.h"

struct FDateTime
{
	FDateTime() = default;
	explicit FDateTime(int64 InTicks)
		: Ticks(InTicks) {}
	static FDateTime MinValue() { return FDateTime(0); }
	int64 GetTicks() const { return Ticks; }
	bool operator==(const FDateTime& Other) const { return Ticks == Other.Ticks; }
	bool operator!=(const FDateTime& Other) const { return Ticks != Other.Ticks; }

private:
	int64 Ticks = 0;
};
