#include "Modules/ModuleManager.h"
#include "PluginBrowser/PluginBrowserModule.h"
#include "StandIn/World.h"

DEFINE_LOG_CATEGORY_STATIC(LogModuleManager, Log, All);

namespace
{
	const FName PluginBrowserModuleName(TEXT("PluginBrowser"));
}

FModuleManager& FModuleManager::Get()
{
	static FModuleManager Instance;
	return Instance;
}

// The editor starts with the Plugin Browser loaded unless its plugin is disabled; nothing else of the
// engine is known here yet.
bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	return InModuleName == PluginBrowserModuleName && StandIn::GetWorld().bPluginBrowserLoaded;
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	// A disabled plugin's binaries are not on the module search path, so its modules cannot be loaded.
	if (!IsModuleLoaded(InModuleName))
	{
		UE_LOG(LogModuleManager, Fatal, TEXT("ModuleManager: Unable to load module '%s'"), *InModuleName.ToString());
	}
	return StandInPluginBrowser::Module();
}
