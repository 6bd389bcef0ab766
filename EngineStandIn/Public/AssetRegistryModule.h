#pragma once

#include "CoreMinimal.h"
#include "IAssetRegistry.h"
#include "Misc/AssetRegistryInterface.h"
#include "Modules/ModuleManager.h"

class FAssetRegistryModule : public IAssetRegistryInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	// The registry singleton.
	virtual IAssetRegistry& Get() const;
};
