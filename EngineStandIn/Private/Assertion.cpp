#include "Misc/AssertionMacros.h"
#include <cstdio>
#include <cstdlib>

namespace StandInAssertion
{
	void Fail(const char* Expression, const char* File, int Line)
	{
		std::fprintf(stderr, "Assertion failed: %s [File:%s] [Line: %d]\n", Expression, File, Line);
		std::fflush(stderr);
		std::abort();
	}
}
