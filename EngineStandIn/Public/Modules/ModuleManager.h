#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include <memory>
#include <vector>

namespace StandInModules
{
	class FModuleManagerAccess;

	// Made by IMPLEMENT_MODULE before main runs: the module becomes loadable by its name through its
	// exported entry point, as a module binary on the engine's search path is.
	struct FModuleRegistrant
	{
		FModuleRegistrant(const TCHAR* ModuleName, IModuleInterface* (*InitializeModule)());
	};
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
	// Shuts the module down and destroys it; false when it was not loaded.
	bool UnloadModule(const FName InModuleName, bool bIsShutdown = false);

	template <typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName InModuleName)
	{
		IModuleInterface& ModuleInterface = FModuleManager::Get().LoadModuleChecked(InModuleName);
		return (TModuleInterface&)(ModuleInterface);
	}

private:
	friend class StandInModules::FModuleManagerAccess;

	FModuleManager();
	// Virtual, as the engine's manager inherits it from its console-command base, and private: no class can
	// derive from the manager.
	virtual ~FModuleManager();

	struct FLoadedModule
	{
		FName Name;
		std::unique_ptr<IModuleInterface> Module;
	};
	// In load order.
	std::vector<FLoadedModule> LoadedModules;
};

#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName)         \
	extern "C" DLLEXPORT IModuleInterface* InitializeModule() \
	{                                                         \
		return new ModuleImplClass();                         \
	}                                                         \
	extern "C" void IMPLEMENT_MODULE_##ModuleName() {}        \
	static StandInModules::FModuleRegistrant ModuleRegistrant##ModuleName(TEXT(#ModuleName), &InitializeModule);
