#include "Modules/ModuleManager.h"
#include "StandInModules.h"
#include <utility>
#include <vector>

namespace StandInModules
{
	// Each defined in the file of the same name beside this one; a new engine module is one more line here.
	IModuleInterface* InitializeDesktopPlatformModule();
	IModuleInterface* InitializeMainFrameModule();
	IModuleInterface* InitializeUATHelperModule();

	namespace
	{
		std::vector<std::pair<FName, FInitializeModule>>& Initializers()
		{
			static std::vector<std::pair<FName, FInitializeModule>> List = {
				{TEXT("DesktopPlatform"), &InitializeDesktopPlatformModule},
				{TEXT("MainFrame"), &InitializeMainFrameModule},
				{TEXT("UATHelper"), &InitializeUATHelperModule},
			};
			return List;
		}
	}

	const FInitializeModule* FindInitializer(const FName ModuleName)
	{
		for (const std::pair<FName, FInitializeModule>& Entry : Initializers())
		{
			if (Entry.first == ModuleName)
			{
				return &Entry.second;
			}
		}
		return nullptr;
	}

	void Register(const FName ModuleName, FInitializeModule Initializer)
	{
		check(FindInitializer(ModuleName) == nullptr);
		Initializers().emplace_back(ModuleName, std::move(Initializer));
	}
}

FModuleManager::FModuleManager() {}

// Modules stay loaded until the program ends, as the editor's do until it shuts down.
FModuleManager::~FModuleManager() {}

FModuleManager& FModuleManager::Get()
{
	static FModuleManager* Instance = new FModuleManager();
	return *Instance;
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	for (const FLoadedModule& Loaded : LoadedModules)
	{
		if (Loaded.Name == InModuleName)
		{
			return true;
		}
	}
	return false;
}

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName)
{
	for (const FLoadedModule& Loaded : LoadedModules)
	{
		if (Loaded.Name == InModuleName)
		{
			return Loaded.Module.get();
		}
	}
	const StandInModules::FInitializeModule* Initializer = StandInModules::FindInitializer(InModuleName);
	if (Initializer == nullptr)
	{
		return nullptr;
	}
	// Entered before its start-up, so that a module that loads others while starting finds itself loaded.
	LoadedModules.push_back(FLoadedModule{InModuleName, std::unique_ptr<IModuleInterface>((*Initializer)())});
	IModuleInterface* Module = LoadedModules.back().Module.get();
	Module->StartupModule();
	return Module;
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	IModuleInterface* Module = LoadModule(InModuleName);
	checkf(Module, TEXT("%s"), *InModuleName.ToString());
	return *Module;
}
