#pragma once

// Plugin creation as the engine's PluginUtils does it for the new-plugin wizard.
#include "CoreMinimal.h"
#include "Interfaces/IPluginManager.h"
#include "ModuleDescriptor.h"

namespace StandInPluginUtils
{
	struct FNewPluginParams
	{
		FString PluginIconPath;
		TArray<FString> TemplateFolders;
		bool bCanContainContent = false;
		bool bHasModules = false;
		EHostType::Type ModuleDescriptorType = EHostType::Runtime;
		ELoadingPhase::Type LoadingPhase = ELoadingPhase::Default;
	};

	// "<Location>/<Name>/<Name>.uplugin", made absolute.
	FString GetPluginFilePath(const FString& PluginLocation, const FString& PluginName);

	// Null, with the reason, when any step fails; the half-made folder is then removed.
	TSharedPtr<IPlugin> CreateAndMountNewPlugin(const FString& PluginName, const FString& PluginLocation, const FNewPluginParams& CreationParams, FText& FailReason);
}
