// Copyright UGCEditor contributors. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class FMenuBuilder;
class FSuperPlatformFile;
class FToolBarBuilder;
class FUGCCreator;
class FUGCPackager;
class FUGCPaking;
class FUICommandList;

/**
 * The UGCEditor module: owns the three features ("Create Mod", "Cook Mod", "Distribute"), places their
 * entries in the level editor's File menu and toolbar, and puts loose files on disk in front of the engine's
 * own through a platform-file layer.
 */
class FUGCEditorModule : public IModuleInterface
{
public:
	//~ Begin IModuleInterface Interface
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;
	//~ End IModuleInterface Interface

private:
	/** "Create Mod": opens the "Create New Mod" tab, telling the user when the Plugin Browser is off. */
	void CreateUGCButtonClicked();
	/** "Distribute": opens a new paking dialog. */
	void PakingUGCButtonClicked();

	void AddCreateUGCMenuEntry(FMenuBuilder& MenuBuilder);
	void AddCreateUGCToolbarButton(FToolBarBuilder& ToolBarBuilder);
	/** The "Cook Mod" sub-menu, listing the commands of the last toolbar drop-down. */
	void AddPackageUGCMenu(FMenuBuilder& MenuBuilder);
	/** The "Cook Mod" combo button: only its drop-down does something. */
	void AddPackageUGCToolbarButton(FToolBarBuilder& ToolBarBuilder);
	void AddPakingUGCMenuEntry(FMenuBuilder& MenuBuilder);
	void AddPakingUGCToolbarButton(FToolBarBuilder& ToolBarBuilder);

	TSharedPtr<FUGCCreator> UGCCreator;
	TSharedPtr<FUGCPackager> UGCPackager;
	TSharedPtr<FUGCPaking> UGCPaking;
	/** Maps "Create Mod" and "Distribute" to this module; the menus and toolbar entries act through it. */
	TSharedPtr<FUICommandList> PluginCommands;
	/** Installed at the top of the platform-file chain at start-up; deleted before the other members. */
	TUniquePtr<FSuperPlatformFile> PlatformFile;
};
