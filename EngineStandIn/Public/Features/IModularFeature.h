#pragma once

#include "CoreMinimal.h"

class IModularFeature
{
};
