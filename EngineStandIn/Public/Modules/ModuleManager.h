#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include <memory>
#include <vector>

namespace StandInModules
{
	void UnloadAll();
}

// Loads modules by name and keeps them loaded. The stand-in has no module files: the modules it can load
// are those registered with it (its own engine modules first of all), each made at its first load.
class CORE_API FModuleManager
{
public:
	static FModuleManager& Get();

	bool IsModuleLoaded(const FName InModuleName) const;
	// Null for a module nobody registered.
	IModuleInterface* LoadModule(const FName InModuleName);
	// A module that cannot be loaded ends the editor.
	IModuleInterface& LoadModuleChecked(const FName InModuleName);

	template <typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName InModuleName)
	{
		IModuleInterface& ModuleInterface = FModuleManager::Get().LoadModuleChecked(InModuleName);
		return (TModuleInterface&)(ModuleInterface);
	}

private:
	friend void StandInModules::UnloadAll();

	FModuleManager();
	~FModuleManager();

	struct FLoadedModule
	{
		FName Name;
		std::unique_ptr<IModuleInterface> Module;
	};
	// In load order.
	std::vector<FLoadedModule> LoadedModules;
};
