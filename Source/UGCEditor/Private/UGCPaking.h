// Copyright UGCEditor contributors. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** One plugin of a distribution run. */
struct FPakingPluginEntry
{
	/** The plugin's folder name, which is also its name. */
	FString PluginName;
	/** The modder's own work: only such plugins get descriptors and take part in the registry merge. */
	bool bOriginal = false;
	/** The DLCs the plugin needs, one name each, as the ".ugc" descriptor lists them. */
	TArray<FString> RequiredDLCs;
};

/**
 * Turns cooked plugins into one pak in the launch folder, with the descriptor files through which the game
 * mounts them.
 */
class FUGCPaking : public TSharedFromThis<FUGCPaking>
{
public:
	/** The plugins of the next run, in the dialog's order; emptied by every run. */
	TArray<FPakingPluginEntry> Plugins;
	/** Chooses the content descriptor: ".ugc" when set, ".dlc" when clear. */
	bool bCalverly5Plugin = false;

	/** Opens a new paking dialog, in a window of its own, on a fresh look for cooked plugins. */
	void OpenPakingDialog();

	/** Names of the project plugins whose cooked output holds a development asset registry. */
	TArray<FString> FindCookedPlugins();

	/** Runs on the game thread until the pak tool is done; empties Plugins at the end. */
	void Distribute();

private:
	void WritePakResponseFile(const FString& StagingRoot, const FString& ResponseFilePath, const FString& PakPath, const TArray<FString>& AssetRegistries);
	void RunUnrealPak(const FString& StagingRoot, const FString& ResponseFilePath, const FString& FirstPluginName, const FString& PakPath, const FString& LaunchDir);
	void CleanUpDistribution(const TArray<FPakingPluginEntry>& DistributedPlugins, const FString& StagingRoot, const FString& ContentDescriptorPath, const FString& UPluginPath, const FString& PlaceholderRegistryPath);
};
