#pragma once

#include "CoreMinimal.h"

class UObject;

// The lowest layer of every object: its name. The stand-in's objects have no class, outer or flags.
class COREUOBJECT_API UObjectBase
{
protected:
	UObjectBase() {}

	// Gives the object its name; the stand-in makes its objects nameless and names them with this.
	void LowLevelRename(FName NewName, UObject* NewOuter = NULL);

public:
	virtual ~UObjectBase() {}

	FName GetFName() const { return NamePrivate; }

private:
	FName NamePrivate;
};
