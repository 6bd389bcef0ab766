#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Logging/LogCategory.h"

namespace StandInLogging
{
	// Hands a formatted line to the output devices; a Fatal line ends the program.
	void Emit(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const FString& Message);
	// UE_LOG's freshly formatted line: the journal keeps it without a copy.
	void Emit(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, FString&& Message);
}

#define UE_LOG_ACTIVE(CategoryName, Verbosity) (!CategoryName.IsSuppressed(ELogVerbosity::Verbosity))

#define UE_LOG(CategoryName, Verbosity, Format, ...)                                                                    \
	do                                                                                                                  \
	{                                                                                                                   \
		static_assert(TIsArrayOrRefOfType<decltype(Format), TCHAR>::Value, "Formatting string must be a TCHAR array."); \
		if (UE_LOG_ACTIVE(CategoryName, Verbosity))                                                                     \
		{                                                                                                               \
			StandInLogging::Emit(CategoryName, ELogVerbosity::Verbosity, FString::Printf(Format, ##__VA_ARGS__));       \
		}                                                                                                               \
	} while (false)

#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                                                \
	extern struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{                                                                                                                                    \
		FLogCategory##CategoryName() : FLogCategory(TEXT(#CategoryName)) {}                                                              \
	} CategoryName;

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName;

#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                                                 \
	static struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{                                                                                                                                    \
		FLogCategory##CategoryName() : FLogCategory(TEXT(#CategoryName)) {}                                                              \
	} CategoryName;
