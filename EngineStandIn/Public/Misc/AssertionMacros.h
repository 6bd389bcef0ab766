#pragma once

#include "HAL/Platform.h"

namespace StandInAssertion
{
	// A failed check ends the editor, as it does in a Development build.
	[[noreturn]] void Fail(const char* Expression, const char* File, int Line);
	// Logs a failed ensure as the engine does and lets the editor go on.
	void EnsureFailed(const char* Expression, const char* File, int Line, const TCHAR* Message);
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

// As the engine's: the value of the expression; a failure is reported the first time each call site fails.
#define ensure(InExpression)                                                               \
	(!!(InExpression) || ([]() -> bool {                                                   \
		static bool bExecuted = false;                                                     \
		if (!bExecuted)                                                                    \
		{                                                                                  \
			bExecuted = true;                                                              \
			::StandInAssertion::EnsureFailed(#InExpression, __FILE__, __LINE__, TEXT("")); \
		}                                                                                  \
		return false;                                                                      \
	}()))
