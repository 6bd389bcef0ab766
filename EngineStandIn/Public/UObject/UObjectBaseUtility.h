#pragma once

#include "CoreMinimal.h"
#include "UObject/UObjectBase.h"

class COREUOBJECT_API UObjectBaseUtility : public UObjectBase
{
};
