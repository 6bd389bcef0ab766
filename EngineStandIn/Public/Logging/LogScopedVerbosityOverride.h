#pragma once

#include "CoreTypes.h"
#include "Logging/LogCategory.h"

// Sets a category's verbosity for as long as it lives, then puts the previous one back.
class CORE_API FLogScopedVerbosityOverride
{
public:
	FLogScopedVerbosityOverride(FLogCategoryBase* Category, ELogVerbosity::Type Verbosity)
		: SavedCategory(Category), SavedVerbosity(Category->GetVerbosity())
	{
		Category->SetVerbosity(Verbosity);
	}
	~FLogScopedVerbosityOverride() { SavedCategory->SetVerbosity(SavedVerbosity); }

private:
	FLogCategoryBase* SavedCategory;
	ELogVerbosity::Type SavedVerbosity;
};
