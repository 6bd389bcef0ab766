#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

// A package of content or a map, named by its long package name ("/MyRoute/Maps/Main").
class COREUOBJECT_API UPackage : public UObject
{
public:
	// Whether the package has changes not yet saved.
	bool IsDirty() const { return bDirty; }
	void SetDirtyFlag(bool bIsDirty) { bDirty = bIsDirty; }

private:
	bool bDirty = false;
};
