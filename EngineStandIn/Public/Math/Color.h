#pragma once

#include "CoreTypes.h"

struct FLinearColor
{
	float R = 0.0f;
	float G = 0.0f;
	float B = 0.0f;
	float A = 0.0f;

	FLinearColor() = default;
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR), G(InG), B(InB), A(InA) {}
	bool operator==(const FLinearColor& Other) const { return R == Other.R && G == Other.G && B == Other.B && A == Other.A; }
	bool operator!=(const FLinearColor& Other) const { return !(*this == Other); }

	static const FLinearColor White;
	static const FLinearColor Black;
	static const FLinearColor Transparent;
};
