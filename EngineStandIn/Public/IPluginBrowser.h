#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "Editor/UnrealEd/Public/Features/IPluginsEditorFeature.h"

// The module interface of the engine's Plugin Browser plugin.
class IPluginBrowser : public IModuleInterface, public IPluginsEditorFeature
{
public:
	static inline IPluginBrowser& Get()
	{
		return FModuleManager::LoadModuleChecked<IPluginBrowser>("PluginBrowser");
	}

	static inline bool IsAvailable()
	{
		return FModuleManager::Get().IsModuleLoaded("PluginBrowser");
	}

	// A dock tab holding the new-plugin wizard, driven by the given definition.
	virtual TSharedRef<class SDockTab> SpawnPluginCreatorTab(const class FSpawnTabArgs& SpawnTabArgs, TSharedPtr<class IPluginWizardDefinition> PluginWizardDefinition) = 0;
};
