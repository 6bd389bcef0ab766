#pragma once

#include "CoreTypes.h"

// An enumeration of the old namespaced kind, stored in one byte.
template <class TEnum>
class TEnumAsByte
{
public:
	TEnumAsByte(TEnum InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}

	operator TEnum() const { return (TEnum)Value; }

private:
	uint8 Value;
};
