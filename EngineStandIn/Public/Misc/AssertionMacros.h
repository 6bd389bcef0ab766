#pragma once

#include "HAL/Platform.h"

namespace StandInAssertion
{
	// A failed check ends the editor, as it does in a Development build.
	[[noreturn]] void Fail(const char* Expression, const char* File, int Line);
}

// Statements, as the engine's are, so that a check cannot be used as a value.
#define check(expr)                                              \
	{                                                            \
		if (!(expr))                                             \
		{                                                        \
			::StandInAssertion::Fail(#expr, __FILE__, __LINE__); \
		}                                                        \
	}
#define checkf(expr, format, ...) check(expr)
#define checkNoEntry() check(!"Enclosing block should never be called")
