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
		checkf(IsSet(), TEXT("It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead."));
		return Value;
	}
	const OptionalType& Get(const OptionalType& DefaultValue) const { return IsSet() ? Value : DefaultValue; }

private:
	OptionalType Value;
	bool bIsSet;
};
