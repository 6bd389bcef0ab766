#include "AssetRegistryModule.h"

namespace
{
	// The stand-in scans nothing: no asset is ever asked for.
	class FStandInAssetRegistry : public IAssetRegistry
	{
	};

	FStandInAssetRegistry& Registry()
	{
		static FStandInAssetRegistry Instance;
		return Instance;
	}
}

void FAssetRegistryModule::StartupModule() {}

void FAssetRegistryModule::ShutdownModule() {}

IAssetRegistry& FAssetRegistryModule::Get() const
{
	return Registry();
}

namespace StandInModules
{
	IModuleInterface* InitializeAssetRegistryModule()
	{
		return new FAssetRegistryModule();
	}
}
