// Copyright UGCEditor contributors. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/Commands.h"

class FUICommandInfo;
class IPlugin;

/** The module's user-interface commands, in the binding context "UGCEditor", with their icons from FUGCEditorStyle. */
class FUGCEditorCommands : public TCommands<FUGCEditorCommands>
{
public:
	FUGCEditorCommands();

	//~ Begin TCommands Interface
	virtual void RegisterCommands() override;
	//~ End TCommands Interface

	/**
	 * Registers one command per plugin, in the order given: named "UGCEditorUGC_" and the plugin's name,
	 * labelled with the name, with the plugin's base directory as tooltip and no icon.
	 */
	TArray<TSharedPtr<FUICommandInfo>> RegisterUGCCommands(const TArray<TSharedRef<IPlugin>>& Plugins) const;

	/** Removes commands made by RegisterUGCCommands; every element must be set. */
	void UnregisterUGCCommands(const TArray<TSharedPtr<FUICommandInfo>>& Commands) const;

	/** "Create Mod": a new mod from the project's templates. */
	TSharedPtr<FUICommandInfo> CreateUGCAction;
	/** "Package Mod": declared for its icon; nothing maps or shows it. */
	TSharedPtr<FUICommandInfo> PackageUGCAction;
	/** "Distribute": the paking dialog. */
	TSharedPtr<FUICommandInfo> PakingUGCAction;
};
