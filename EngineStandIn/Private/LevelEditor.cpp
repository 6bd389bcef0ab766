#include "LevelEditor.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Modules/ModuleManager.h"
#include "StandIn/UserInput.h"

TSharedPtr<FExtender> FExtensibilityManager::GetAllExtenders()
{
	return FExtender::Combine(Extenders);
}

FLevelEditorModule::FLevelEditorModule() {}

void FLevelEditorModule::StartupModule()
{
	GlobalLevelEditorActions = MakeShareable(new FUICommandList());
	MenuExtensibilityManager = MakeShareable(new FExtensibilityManager());
	ToolBarExtensibilityManager = MakeShareable(new FExtensibilityManager());
}

void FLevelEditorModule::ShutdownModule() {}

namespace StandInModules
{
	IModuleInterface* InitializeLevelEditorModule()
	{
		return new FLevelEditorModule();
	}
}

namespace StandIn
{
	// The level editor's own entries at these hooks are not the stand-in's concern: what opens is what the
	// extensions put there, in the order the level editor applies them.
	TSharedRef<SWidget> OpenLevelEditorMenu(FName Hook)
	{
		FLevelEditorModule& LevelEditor = FModuleManager::LoadModuleChecked<FLevelEditorModule>(TEXT("LevelEditor"));
		FMenuBuilder MenuBuilder(true, LevelEditor.GetGlobalLevelEditorActions(), LevelEditor.GetMenuExtensibilityManager()->GetAllExtenders());
		MenuBuilder.BeginSection(Hook);
		MenuBuilder.EndSection();
		return MenuBuilder.MakeWidget();
	}

	TSharedRef<SWidget> OpenLevelEditorToolBar(FName Hook)
	{
		FLevelEditorModule& LevelEditor = FModuleManager::LoadModuleChecked<FLevelEditorModule>(TEXT("LevelEditor"));
		FToolBarBuilder ToolBarBuilder(LevelEditor.GetGlobalLevelEditorActions(), FMultiBoxCustomization::None, LevelEditor.GetToolBarExtensibilityManager()->GetAllExtenders());
		ToolBarBuilder.BeginSection(Hook);
		ToolBarBuilder.EndSection();
		return ToolBarBuilder.MakeWidget();
	}
}
