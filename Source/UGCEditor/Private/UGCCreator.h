// Copyright UGCEditor contributors. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class FSpawnTabArgs;
class SDockTab;

/**
 * The "Create New Mod" tab: the Plugin Browser's plugin wizard, driven by this module's mod templates.
 * The tab is registered for as long as this object lives; the module holds it shared, like its other features.
 */
class FUGCCreator : public TSharedFromThis<FUGCCreator>
{
public:
	FUGCCreator();
	~FUGCCreator();

	// The tab's spawner is bound to this object's address.
	FUGCCreator(const FUGCCreator&) = delete;
	FUGCCreator& operator=(const FUGCCreator&) = delete;

	/** Spawns the tab or brings the open one to the front; without the Plugin Browser, says why unless bSilent. */
	void OpenCreateModTab(bool bSilent);

	/** The tab spawner's callback: a new wizard tab with a definition of its own. */
	TSharedRef<SDockTab> SpawnCreateModTab(const FSpawnTabArgs& SpawnTabArgs);
};
