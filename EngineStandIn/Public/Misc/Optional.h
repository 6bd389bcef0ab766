#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

template <typename OptionalType>
struct TOptional
{
public:
	TOptional()
		: Value(), bIsSet(false) {}
	TOptional(const OptionalType& InValue)
		: Value(InValue), bIsSet(true) {}

	bool IsSet() const { return bIsSet; }
	const OptionalType& GetValue() const
	{
		checkf(IsSet(), TEXT("GetValue() of an unset TOptional"));
		return Value;
	}
	const OptionalType& Get(const OptionalType& DefaultValue) const { return IsSet() ? Value : DefaultValue; }

private:
	OptionalType Value;
	bool bIsSet;
};
