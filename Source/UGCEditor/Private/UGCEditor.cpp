// Copyright UGCEditor contributors. All Rights Reserved.

#include "UGCEditor.h"

#include "SuperPlatformFile.h"
#include "UGCCreator.h"
#include "UGCEditorCommands.h"
#include "UGCEditorStyle.h"
#include "UGCPackager.h"
#include "UGCPaking.h"

#include "AssetRegistryModule.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "Textures/SlateIcon.h"

#define LOCTEXT_NAMESPACE "FUGCEditorModule"

// Named rather than anonymous, so that unity builds cannot mix these up with another unit's helpers.
namespace UGCEditorExtensions
{
	// Each extension gets an extender of its own, owned from then on by the level editor.
	void AddMenuExtension(FLevelEditorModule& LevelEditorModule, FName Hook, const TSharedPtr<FUICommandList>& CommandList, const FMenuExtensionDelegate& Builder)
	{
		const TSharedPtr<FExtender> Extender = MakeShareable(new FExtender());
		Extender->AddMenuExtension(Hook, EExtensionHook::After, CommandList, Builder);
		LevelEditorModule.GetMenuExtensibilityManager()->AddExtender(Extender);
	}

	void AddToolBarExtension(FLevelEditorModule& LevelEditorModule, FName Hook, const TSharedPtr<FUICommandList>& CommandList, const FToolBarExtensionDelegate& Builder)
	{
		const TSharedPtr<FExtender> Extender = MakeShareable(new FExtender());
		Extender->AddToolBarExtension(Hook, EExtensionHook::After, CommandList, Builder);
		LevelEditorModule.GetToolBarExtensibilityManager()->AddExtender(Extender);
	}

	FSlateIcon GetCookModIcon()
	{
		return FSlateIcon(FUGCEditorStyle::GetStyleSetName(), "UGCEditor.PackageUGCAction");
	}
}

void FUGCEditorModule::StartupModule()
{
	UGCCreator = MakeShareable(new FUGCCreator());
	UGCPackager = MakeShareable(new FUGCPackager());
	UGCPaking = MakeShareable(new FUGCPaking());
	// Made now, installed last: everything start-up loads goes through the chain as it was.
	PlatformFile = MakeUnique<FSuperPlatformFile>();

	FUGCEditorStyle::Initialize();
	FUGCEditorStyle::ReloadTextures();
	FUGCEditorCommands::Register();

	// "Package Mod" stays unmapped: the "Cook Mod" entries are built directly, with the packager's own menus.
	PluginCommands = MakeShareable(new FUICommandList());
	PluginCommands->MapAction(FUGCEditorCommands::Get().CreateUGCAction, FExecuteAction::CreateRaw(this, &FUGCEditorModule::CreateUGCButtonClicked), FCanExecuteAction(), EUIActionRepeatMode::RepeatDisabled);
	PluginCommands->MapAction(FUGCEditorCommands::Get().PakingUGCAction, FExecuteAction::CreateRaw(this, &FUGCEditorModule::PakingUGCButtonClicked), FCanExecuteAction(), EUIActionRepeatMode::RepeatDisabled);

	FLevelEditorModule& LevelEditorModule = FModuleManager::LoadModuleChecked<FLevelEditorModule>("LevelEditor");
	UGCEditorExtensions::AddMenuExtension(LevelEditorModule, "FileProject", PluginCommands, FMenuExtensionDelegate::CreateRaw(this, &FUGCEditorModule::AddCreateUGCMenuEntry));
	UGCEditorExtensions::AddToolBarExtension(LevelEditorModule, "Compile", PluginCommands, FToolBarExtensionDelegate::CreateRaw(this, &FUGCEditorModule::AddCreateUGCToolbarButton));
	UGCEditorExtensions::AddMenuExtension(LevelEditorModule, "FileProject", PluginCommands, FMenuExtensionDelegate::CreateRaw(this, &FUGCEditorModule::AddPackageUGCMenu));
	UGCEditorExtensions::AddToolBarExtension(LevelEditorModule, "Compile", PluginCommands, FToolBarExtensionDelegate::CreateRaw(this, &FUGCEditorModule::AddPackageUGCToolbarButton));
	UGCEditorExtensions::AddMenuExtension(LevelEditorModule, "FileProject", PluginCommands, FMenuExtensionDelegate::CreateRaw(this, &FUGCEditorModule::AddPakingUGCMenuEntry));
	UGCEditorExtensions::AddToolBarExtension(LevelEditorModule, "Compile", PluginCommands, FToolBarExtensionDelegate::CreateRaw(this, &FUGCEditorModule::AddPakingUGCToolbarButton));

	FAssetRegistryModule& AssetRegistryModule = FModuleManager::LoadModuleChecked<FAssetRegistryModule>("AssetRegistry");
	AssetRegistryModule.Get();

	// On top of whatever is there now; a layer that cannot initialise is installed all the same.
	PlatformFile->Initialize(&FPlatformFileManager::Get().GetPlatformFile(), TEXT(""));
	FPlatformFileManager::Get().SetPlatformFile(*PlatformFile);

	if (UE_LOG_ACTIVE(LogTemp, Warning))
	{
		UE_LOG(LogTemp, Warning, TEXT("Unofficial Editor Extensions: Scanning Assets"));
		UE_LOG(LogTemp, Warning, TEXT("Unofficial Editor Extensions: Finished Scanning Assets"));
	}
}

void FUGCEditorModule::ShutdownModule()
{
	FUGCEditorStyle::Shutdown();
	FUGCEditorCommands::Unregister();
	// The layer hands out the physical layer as its lower level, so that is what is left on top.
	FPlatformFileManager::Get().SetPlatformFile(*PlatformFile->GetLowerLevel());
}

void FUGCEditorModule::CreateUGCButtonClicked()
{
	if (UGCCreator.IsValid())
	{
		UGCCreator->OpenCreateModTab(false);
	}
}

void FUGCEditorModule::PakingUGCButtonClicked()
{
	if (UGCPaking.IsValid())
	{
		UGCPaking->OpenPakingDialog();
	}
}

void FUGCEditorModule::AddCreateUGCMenuEntry(FMenuBuilder& MenuBuilder)
{
	MenuBuilder.AddMenuEntry(FUGCEditorCommands::Get().CreateUGCAction);
}

void FUGCEditorModule::AddCreateUGCToolbarButton(FToolBarBuilder& ToolBarBuilder)
{
	ToolBarBuilder.AddToolBarButton(FUGCEditorCommands::Get().CreateUGCAction);
}

void FUGCEditorModule::AddPackageUGCMenu(FMenuBuilder& MenuBuilder)
{
	// Opens on hover, and a chosen plugin closes the whole menu.
	MenuBuilder.AddSubMenu(
		LOCTEXT("PackageUGCMenu_Label", "Cook Mod"),
		LOCTEXT("PackageUGCMenu_Tooltip", "Share and distribute DLC"),
		FNewMenuDelegate::CreateSP(UGCPackager.ToSharedRef(), &FUGCPackager::FillPackageSubMenu),
		false,
		UGCEditorExtensions::GetCookModIcon(),
		true);
}

void FUGCEditorModule::AddPackageUGCToolbarButton(FToolBarBuilder& ToolBarBuilder)
{
	// An empty action: the button itself does nothing, only its drop-down lists the plugins.
	ToolBarBuilder.AddComboButton(
		FUIAction(),
		FOnGetContent::CreateSP(UGCPackager.ToSharedRef(), &FUGCPackager::GeneratePackageMenuContent),
		LOCTEXT("PackageUGC_Label", "Cook Mod"),
		LOCTEXT("PackageUGC_Tooltip", "Share and distribute DLC"),
		UGCEditorExtensions::GetCookModIcon(),
		false);
}

void FUGCEditorModule::AddPakingUGCMenuEntry(FMenuBuilder& MenuBuilder)
{
	MenuBuilder.AddMenuEntry(FUGCEditorCommands::Get().PakingUGCAction);
}

void FUGCEditorModule::AddPakingUGCToolbarButton(FToolBarBuilder& ToolBarBuilder)
{
	ToolBarBuilder.AddToolBarButton(FUGCEditorCommands::Get().PakingUGCAction);
}

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FUGCEditorModule, UGCEditor)
