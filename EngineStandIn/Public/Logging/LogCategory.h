#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

using FLogCategoryName = FName;

struct FLogCategoryBase
{
	FLogCategoryBase(const FLogCategoryName& CategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
		: Name(CategoryName), Verbosity(InDefaultVerbosity)
	{
	}
	bool IsSuppressed(ELogVerbosity::Type VerbosityLevel) const { return VerbosityLevel > Verbosity; }
	const FLogCategoryName& GetCategoryName() const { return Name; }
	ELogVerbosity::Type GetVerbosity() const { return Verbosity; }
	// What prints from now on, as the console's "Log <category> <verbosity>" sets it.
	void SetVerbosity(ELogVerbosity::Type InVerbosity) { Verbosity = InVerbosity; }

private:
	FLogCategoryName Name;
	ELogVerbosity::Type Verbosity;
};

template <uint8 InDefaultVerbosity, uint8 InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
	enum
	{
		CompileTimeVerbosity = InCompileTimeVerbosity
	};
	FLogCategory(const FLogCategoryName& InCategoryName)
		: FLogCategoryBase(InCategoryName, ELogVerbosity::Type(InDefaultVerbosity), ELogVerbosity::Type(CompileTimeVerbosity)) {}
};
