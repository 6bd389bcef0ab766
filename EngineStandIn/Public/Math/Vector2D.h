#pragma once

#include "CoreTypes.h"

struct FVector2D
{
	float X = 0.0f;
	float Y = 0.0f;

	FVector2D() = default;
	constexpr FVector2D(float InX, float InY)
		: X(InX), Y(InY) {}
	bool operator==(const FVector2D& Other) const { return X == Other.X && Y == Other.Y; }
	bool operator!=(const FVector2D& Other) const { return !(*this == Other); }
};
