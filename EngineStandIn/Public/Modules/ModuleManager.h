#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

// The editor's modules by name. The stand-in knows its own engine modules only.
class CORE_API FModuleManager
{
public:
	static FModuleManager& Get();

	bool IsModuleLoaded(const FName InModuleName) const;
	// Stops the program when the module cannot be loaded.
	IModuleInterface& LoadModuleChecked(const FName InModuleName);

	template <typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName ModuleName)
	{
		IModuleInterface& ModuleInterface = FModuleManager::Get().LoadModuleChecked(ModuleName);
		return static_cast<TModuleInterface&>(ModuleInterface);
	}
};
