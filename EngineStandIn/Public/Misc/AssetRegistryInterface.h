#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

// The asset registry module as the core sees it.
class IAssetRegistryInterface : public IModuleInterface
{
};
