// Copyright UGCEditor contributors. All Rights Reserved.

#include "UGCCreator.h"

#include "UGCPluginWizardDefinition.h"

#include "Framework/Docking/TabManager.h"
#include "IPluginBrowser.h"
#include "Misc/MessageDialog.h"
#include "Modules/ModuleManager.h"
#include "Widgets/Docking/SDockTab.h"

#define LOCTEXT_NAMESPACE "FUGCCreator"

namespace UGCCreatorNames
{
	const FName CreateModTabName(TEXT("UGCPluginCreator"));
	const FName PluginBrowserModuleName(TEXT("PluginBrowser"));
}

FUGCCreator::FUGCCreator()
{
	FTabSpawnerEntry& SpawnerEntry = FGlobalTabmanager::Get()->RegisterNomadTabSpawner(UGCCreatorNames::CreateModTabName, FOnSpawnTab::CreateRaw(this, &FUGCCreator::SpawnCreateModTab));
	SpawnerEntry.SetDisplayName(LOCTEXT("NewUGCTabHeader", "Create New Mod"));
	// Reached only through the module's "Create Mod" command, which checks for the Plugin Browser first.
	SpawnerEntry.SetMenuType(ETabSpawnerMenuType::Hidden);

	FTabManager::RegisterDefaultTabWindowSize(UGCCreatorNames::CreateModTabName, FVector2D(800.0f, 600.0f));
}

FUGCCreator::~FUGCCreator()
{
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(UGCCreatorNames::CreateModTabName);
}

void FUGCCreator::OpenCreateModTab(bool bSilent)
{
	if (FModuleManager::Get().IsModuleLoaded(UGCCreatorNames::PluginBrowserModuleName))
	{
		FGlobalTabmanager::Get()->TryInvokeTab(UGCCreatorNames::CreateModTabName);
	}
	else if (!bSilent)
	{
		FMessageDialog::Open(EAppMsgType::Ok, LOCTEXT("PluginBrowserDisabled", "Creating a game mod requires the use of the Plugin Browser, but it is currently disabled."));
	}
}

TSharedRef<SDockTab> FUGCCreator::SpawnCreateModTab(const FSpawnTabArgs& SpawnTabArgs)
{
	// OpenCreateModTab only invokes the tab with the Plugin Browser loaded; anything else spawning it without
	// (a restored layout) has nothing to put in the tab.
	check(FModuleManager::Get().IsModuleLoaded(UGCCreatorNames::PluginBrowserModuleName));
	IPluginBrowser& PluginBrowser = FModuleManager::LoadModuleChecked<IPluginBrowser>(UGCCreatorNames::PluginBrowserModuleName);

	// The definition keeps the wizard's selection, so each tab gets a fresh one.
	return PluginBrowser.SpawnPluginCreatorTab(SpawnTabArgs, MakeShared<FUGCPluginWizardDefinition>());
}

#undef LOCTEXT_NAMESPACE
