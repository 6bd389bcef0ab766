#pragma once

#include "CoreTypes.h"

struct FIntPoint
{
	int32 X;
	int32 Y;

	FIntPoint()
		: X(0), Y(0) {}
	FIntPoint(int32 InX, int32 InY)
		: X(InX), Y(InY) {}
};
