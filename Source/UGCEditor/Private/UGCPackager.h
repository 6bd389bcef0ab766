// Copyright UGCEditor contributors. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class FMenuBuilder;
class FUICommandInfo;
class IPlugin;
class SWidget;

/** "Cook Mod": offers the project's own plugins and cooks the chosen one for Windows as DLC with the automation tool. */
class FUGCPackager : public TSharedFromThis<FUGCPackager>
{
public:
	/** One command per plugin found at the last opening of the toolbar drop-down, in the order of that list. */
	TArray<TSharedPtr<FUICommandInfo>> PluginCommandInfos;

	/** Mod and project plugins that lie under the project, in the plugin manager's order. */
	void FindPackageablePlugins(TArray<TSharedRef<IPlugin>>& OutPlugins);

	/** Replaces PluginCommandInfos with fresh commands for these plugins, dropping the previous ones first. */
	void RegisterPluginCommands(const TArray<TSharedRef<IPlugin>>& Plugins);

	/** The toolbar drop-down: looks the plugins up again and binds their commands to a command list of its own. */
	TSharedRef<SWidget> GeneratePackageMenuContent();

	/** The main-menu sub-menu: shows the commands of the last toolbar drop-down, so it is empty until that has opened. */
	void FillPackageSubMenu(FMenuBuilder& MenuBuilder);

	void AddPluginEntries(FMenuBuilder& MenuBuilder, const TArray<TSharedPtr<FUICommandInfo>>& Commands);

	/**
	 * True when no dirty content or world package has a file name that begins with the plugin's base
	 * directory, in any letter case; a sibling folder whose name merely starts with this one's counts too.
	 */
	bool IsAllContentSaved(const TSharedRef<IPlugin>& Plugin);

	/** Bound to a plugin's command: has the user save unsaved work, then cooks the plugin if nothing of it is left unsaved. */
	void OnPackagePlugin(TSharedRef<IPlugin> Plugin);

	/** Starts the BuildDLC automation task for the plugin and returns without waiting for it. */
	void PackagePlugin(const TSharedRef<IPlugin>& Plugin);
};
