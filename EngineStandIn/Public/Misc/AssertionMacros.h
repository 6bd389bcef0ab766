#pragma once

#include "HAL/Platform.h"

namespace StandInAssertion
{
	// A failed check ends the editor, as it does in a Development build.
	[[noreturn]] void Fail(const char* Expression, const char* File, int Line);
}

#define check(expr) ((expr) ? (void)0 : ::StandInAssertion::Fail(#expr, __FILE__, __LINE__))
#define checkf(expr, ...) check(expr)
#define verify(expr) check(expr)
#define checkNoEntry() ::StandInAssertion::Fail("checkNoEntry", __FILE__, __LINE__)
