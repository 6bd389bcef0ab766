#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBoxExtender.h"

// Keeps the extenders of one menu or tool bar, for the editor that builds it.
class UNREALED_API FExtensibilityManager
{
public:
	virtual ~FExtensibilityManager() {}

	virtual void AddExtender(TSharedPtr<FExtender> Extender) { Extenders.AddUnique(Extender); }
	virtual void RemoveExtender(TSharedPtr<FExtender> Extender) { Extenders.Remove(Extender); }

	// Every kept extender's extensions as one extender, in the order the extenders were added.
	virtual TSharedPtr<FExtender> GetAllExtenders();

private:
	TArray<TSharedPtr<FExtender>> Extenders;
};

class IHasMenuExtensibility
{
public:
	virtual TSharedPtr<FExtensibilityManager> GetMenuExtensibilityManager() = 0;
};

class IHasToolBarExtensibility
{
public:
	virtual TSharedPtr<FExtensibilityManager> GetToolBarExtensibilityManager() = 0;
};
