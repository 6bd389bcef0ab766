#pragma once

#include "CoreTypes.h"
#include <type_traits>

// Printf takes its arguments through C varargs, as the engine's formatter does; only values that survive
// that trip are allowed (pass *String for %s).
template <typename T, bool bIsEnum = std::is_enum<T>::value>
struct TIsValidVariadicFunctionArg
{
	enum
	{
		Value = bIsEnum || std::is_arithmetic<T>::value || std::is_pointer<T>::value || std::is_null_pointer<T>::value
	};
};
