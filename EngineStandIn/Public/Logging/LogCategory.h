#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

struct FLogCategoryBase
{
	FLogCategoryBase(const TCHAR* CategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
		: Name(CategoryName), Verbosity(InDefaultVerbosity)
	{
	}
	bool IsSuppressed(ELogVerbosity::Type VerbosityLevel) const { return VerbosityLevel > Verbosity; }
	const FName& GetCategoryName() const { return Name; }
	ELogVerbosity::Type GetVerbosity() const { return Verbosity; }
	// What prints from now on, as the console's "Log <category> <verbosity>" sets it.
	void SetVerbosity(ELogVerbosity::Type InVerbosity) { Verbosity = InVerbosity; }

private:
	FName Name;
	ELogVerbosity::Type Verbosity;
};

template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
	static constexpr ELogVerbosity::Type CompileTimeVerbosity = InCompileTimeVerbosity;
	explicit FLogCategory(const TCHAR* CategoryName)
		: FLogCategoryBase(CategoryName, InDefaultVerbosity, InCompileTimeVerbosity) {}
};
