#pragma once

#include "CoreMinimal.h"

class IModularFeature
{
public:
	virtual ~IModularFeature() {}
};
