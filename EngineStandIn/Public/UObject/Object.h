#pragma once

#include "CoreMinimal.h"
#include "UObject/UObjectBaseUtility.h"

class COREUOBJECT_API UObject : public UObjectBaseUtility
{
};
