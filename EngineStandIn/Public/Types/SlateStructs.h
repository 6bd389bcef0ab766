#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"

// How a box slot takes its share of the box: as much as its content wants, or a share of what is left.
struct FSizeParam
{
	enum ESizeRule
	{
		SizeRule_Auto,
		SizeRule_Stretch
	};

	ESizeRule SizeRule;
	TAttribute<float> Value;

protected:
	FSizeParam(ESizeRule InTypeOfSize, const TAttribute<float>& InValue)
		: SizeRule(InTypeOfSize), Value(InValue) {}
};

struct FAuto : public FSizeParam
{
	FAuto()
		: FSizeParam(SizeRule_Auto, 0.0f) {}
};

struct FStretch : public FSizeParam
{
	FStretch(const TAttribute<float>& StretchAmount)
		: FSizeParam(SizeRule_Stretch, StretchAmount) {}
	FStretch()
		: FSizeParam(SizeRule_Stretch, 1.0f) {}
};

// A size that may be left to the widget's content.
struct FOptionalSize
{
	FOptionalSize()
		: Size(Unspecified) {}
	FOptionalSize(const float SpecifiedSize)
		: Size(SpecifiedSize) {}

	bool IsSet() const { return Size != Unspecified; }
	float Get() const { return Size; }

private:
	static constexpr float Unspecified = -1.0f;
	float Size;
};
