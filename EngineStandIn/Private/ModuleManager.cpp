#include "Modules/ModuleManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "StandIn/World.h"
#include "StandInModules.h"
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace StandInModules
{
	// Each defined in the file of the same name beside this one; a new engine module is one more line here.
	IModuleInterface* InitializeAssetRegistryModule();
	IModuleInterface* InitializeDesktopPlatformModule();
	IModuleInterface* InitializeLevelEditorModule();
	IModuleInterface* InitializeMainFrameModule();
	IModuleInterface* InitializePluginBrowserModule();
	IModuleInterface* InitializeUATHelperModule();

	namespace
	{
		std::vector<std::pair<FName, FInitializeModule>>& Initializers()
		{
			static std::vector<std::pair<FName, FInitializeModule>> List = {
				{TEXT("AssetRegistry"), &InitializeAssetRegistryModule},
				{TEXT("DesktopPlatform"), &InitializeDesktopPlatformModule},
				{TEXT("LevelEditor"), &InitializeLevelEditorModule},
				{TEXT("MainFrame"), &InitializeMainFrameModule},
				{TEXT("PluginBrowser"), &InitializePluginBrowserModule},
				{TEXT("UATHelper"), &InitializeUATHelperModule},
			};
			return List;
		}
	}

	const FInitializeModule* FindInitializer(const FName ModuleName)
	{
		// A disabled plugin's binaries are not on the module search path, so its modules cannot be loaded.
		if (ModuleName == FName(TEXT("PluginBrowser")) && !StandIn::GetWorld().bPluginBrowserLoaded)
		{
			return nullptr;
		}
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

	FModuleRegistrant::FModuleRegistrant(const TCHAR* ModuleName, IModuleInterface* (*InitializeModule)())
	{
		Register(FName(ModuleName), InitializeModule);
	}

	std::vector<FName> FModuleManagerAccess::LoadedModuleNames()
	{
		std::vector<FName> Names;
		for (const FModuleManager::FLoadedModule& Loaded : FModuleManager::Get().LoadedModules)
		{
			Names.push_back(Loaded.Name);
		}
		return Names;
	}
}

namespace StandIn
{
	std::vector<FString> LoadedModules()
	{
		std::vector<FString> Names;
		for (const FName& Name : StandInModules::FModuleManagerAccess::LoadedModuleNames())
		{
			Names.push_back(Name.ToString());
		}
		return Names;
	}
}

namespace StandInModules
{
	void FModuleManagerAccess::UnloadAll()
	{
		std::vector<FModuleManager::FLoadedModule>& Loaded = FModuleManager::Get().LoadedModules;
		while (!Loaded.empty())
		{
			Loaded.back().Module->ShutdownModule();
			Loaded.pop_back();
		}
	}

	// The enabled plugins' modules of the Default phase: of the stand-in's, the PluginBrowser.
	void LoadPluginModules()
	{
		FModuleManager::Get().LoadModule(TEXT("PluginBrowser"));
	}

	void StartEditorModules()
	{
		FModuleManagerAccess::UnloadAll();
		LoadPluginModules();
	}

	// The Default-phase modules the project file lists, in its order; a module without a phase is of that
	// phase, as the engine's module descriptor reads it.
	std::vector<FString> DefaultPhaseProjectModules()
	{
		std::vector<FString> Names;
		FString Text;
		if (!FFileHelper::LoadFileToString(Text, *FPaths::GetProjectFilePath()))
		{
			return Names;
		}
		const nlohmann::json Project = nlohmann::json::parse(StandIn::ToUtf8(Text), nullptr, false);
		const auto Modules = Project.is_object() ? Project.find("Modules") : Project.end();
		if (Modules == Project.end() || !Modules->is_array())
		{
			return Names;
		}
		for (const nlohmann::json& Module : *Modules)
		{
			if (!Module.is_object() || !Module.contains("Name") || !Module["Name"].is_string())
			{
				continue;
			}
			if (!Module.contains("LoadingPhase") || Module["LoadingPhase"] == "Default")
			{
				Names.push_back(StandIn::FromUtf8(Module["Name"].get<std::string>()));
			}
		}
		return Names;
	}
}

namespace StandIn
{
	void LoadStartupModules()
	{
		StandInModules::FModuleManagerAccess::UnloadAll();
		// Project modules of a phase start before the plugins' modules of that phase.
		for (const FString& Name : StandInModules::DefaultPhaseProjectModules())
		{
			FModuleManager::Get().LoadModuleChecked(*Name);
		}
		StandInModules::LoadPluginModules();
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

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown)
{
	const auto Find = [this, &InModuleName]() {
		auto It = LoadedModules.begin();
		while (It != LoadedModules.end() && It->Name != InModuleName)
		{
			++It;
		}
		return It;
	};
	auto It = Find();
	if (It == LoadedModules.end())
	{
		return false;
	}
	// Still loaded while it shuts down, as in the engine; then the object is destroyed.
	It->Module->ShutdownModule();
	It = Find();
	std::unique_ptr<IModuleInterface> Module = std::move(It->Module);
	LoadedModules.erase(It);
	Module.reset();
	return true;
}
