#include "Misc/AssertionMacros.h"
#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"
#include <cstdio>
#include <cstdlib>

namespace
{
	// The engine's category for failed ensures; nothing in the module writes to it.
	struct FLogOutputDevice : public FLogCategory<ELogVerbosity::Log, ELogVerbosity::All>
	{
		FLogOutputDevice()
			: FLogCategory(TEXT("LogOutputDevice")) {}
	};

	const FLogOutputDevice& LogOutputDevice()
	{
		static const FLogOutputDevice Category;
		return Category;
	}
}

namespace StandInAssertion
{
	void Fail(const char* Expression, const char* File, int Line)
	{
		std::fprintf(stderr, "Assertion failed: %s [File:%s] [Line: %d]\n", Expression, File, Line);
		std::fflush(stderr);
		std::abort();
	}

	void EnsureFailed(const char* Expression, const char* File, int Line, const TCHAR* Message)
	{
		FString Text = FString::Printf(TEXT("Ensure condition failed: %s [File:%s] [Line: %i]"), *FString(Expression), *FString(File), Line);
		if (Message != nullptr && *Message != 0)
		{
			Text += TEXT("\n");
			Text += Message;
		}
		StandInLogging::Emit(LogOutputDevice(), ELogVerbosity::Error, Text);
	}
}
