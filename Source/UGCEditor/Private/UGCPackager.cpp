// Copyright UGCEditor contributors. All Rights Reserved.

#include "UGCPackager.h"

#include "UGCEditorCommands.h"
#include "UGCEditorStyle.h"

#include "DesktopPlatformModule.h"
#include "FileHelpers.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "GenericPlatform/GenericWindow.h"
#include "IUATHelperModule.h"
#include "Interfaces/IMainFrameModule.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/MessageDialog.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "PluginDescriptor.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Textures/SlateIcon.h"
#include "UObject/Package.h"
#include "Widgets/SWindow.h"

#define LOCTEXT_NAMESPACE "UGCPackager"

namespace UGCPackagerPlugins
{
	// Only what the modder made in this project can be cooked as DLC; engine plugins and anything mounted from
	// outside the project are not theirs to ship.
	bool IsPackageable(const IPlugin& Plugin)
	{
		const EPluginType Type = Plugin.GetType();
		return Plugin.GetLoadedFrom() == EPluginLoadedFrom::Project && (Type == EPluginType::Mod || Type == EPluginType::Project);
	}

	// The style set has no brush under this name, so the entries show the missing-brush picture; the name is kept
	// so that a folder icon only has to be added to the style set.
	const TCHAR* const PluginEntryIconName = TEXT("UGCEditor.Folder");
	const TCHAR* const CookNotificationIconName = TEXT("UGCEditor.PackageUGCAction");
}

void FUGCPackager::FindPackageablePlugins(TArray<TSharedRef<IPlugin>>& OutPlugins)
{
	OutPlugins.Reset();
	for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
	{
		if (UGCPackagerPlugins::IsPackageable(*Plugin))
		{
			UE_LOG(LogTemp, Display, TEXT("Adding %s"), *Plugin->GetName());
			OutPlugins.Add(Plugin);
		}
	}
}

void FUGCPackager::RegisterPluginCommands(const TArray<TSharedRef<IPlugin>>& Plugins)
{
	// The commands are named after the plugins, so last time's must leave the binding context before the same
	// names are registered again.
	if (PluginCommandInfos.Num() > 0)
	{
		FUGCEditorCommands::Get().UnregisterUGCCommands(PluginCommandInfos);
	}
	PluginCommandInfos = FUGCEditorCommands::Get().RegisterUGCCommands(Plugins);
}

TSharedRef<SWidget> FUGCPackager::GeneratePackageMenuContent()
{
	// Looked up at every opening, so that a plugin created or removed since the last one shows at once.
	TArray<TSharedRef<IPlugin>> Plugins;
	FindPackageablePlugins(Plugins);
	RegisterPluginCommands(Plugins);

	// The actions hold this opening's plugins; the list lives as long as the menu widget built on it.
	const TSharedRef<FUICommandList> CommandList = MakeShared<FUICommandList>();
	for (int32 Index = 0; Index < PluginCommandInfos.Num(); ++Index)
	{
		CommandList->MapAction(PluginCommandInfos[Index], FExecuteAction::CreateSP(this, &FUGCPackager::OnPackagePlugin, Plugins[Index]));
	}

	FMenuBuilder MenuBuilder(true, CommandList, TSharedPtr<FExtender>(), false, &FCoreStyle::Get());
	MenuBuilder.BeginSection(TEXT("PackageUGC"), LOCTEXT("PackageUGC", "Share..."));
	AddPluginEntries(MenuBuilder, PluginCommandInfos);
	MenuBuilder.EndSection();
	return MenuBuilder.MakeWidget();
}

void FUGCPackager::FillPackageSubMenu(FMenuBuilder& MenuBuilder)
{
	// The sub-menu has no command list of its own: it shows the commands the toolbar drop-down registered and
	// mapped last, and the plugins looked up here are not used.
	TArray<TSharedRef<IPlugin>> Plugins;
	FindPackageablePlugins(Plugins);
	AddPluginEntries(MenuBuilder, PluginCommandInfos);
}

void FUGCPackager::AddPluginEntries(FMenuBuilder& MenuBuilder, const TArray<TSharedPtr<FUICommandInfo>>& Commands)
{
	// No label or tooltip override: the command's own label is the plugin's name and its tooltip the plugin's folder.
	for (const TSharedPtr<FUICommandInfo>& Command : Commands)
	{
		MenuBuilder.AddMenuEntry(Command, NAME_None, TAttribute<FText>(), TAttribute<FText>(), FSlateIcon(FUGCEditorStyle::GetStyleSetName(), UGCPackagerPlugins::PluginEntryIconName));
	}
}

bool FUGCPackager::IsAllContentSaved(const TSharedRef<IPlugin>& Plugin)
{
	TArray<UPackage*> DirtyPackages;
	FEditorFileUtils::GetDirtyContentPackages(DirtyPackages);
	FEditorFileUtils::GetDirtyWorldPackages(DirtyPackages);
	if (DirtyPackages.Num() == 0)
	{
		return true;
	}

	// Left relative, as the package file names are: both come out of the same paths service in the same form.
	const FString BaseDir = Plugin->GetBaseDir();
	for (const UPackage* Package : DirtyPackages)
	{
		FString FileName;
		if (!FPackageName::TryConvertLongPackageNameToFilename(Package->GetFName().ToString(), FileName))
		{
			continue;
		}
		// A plain prefix test: the same folder deeper in another path does not count, but a sibling folder
		// whose name starts with this plugin's ("Route2" for "Route") does.
		if (FileName.Find(BaseDir, ESearchCase::IgnoreCase, ESearchDir::FromStart) == 0)
		{
			return false;
		}
	}
	return true;
}

void FUGCPackager::OnPackagePlugin(TSharedRef<IPlugin> Plugin)
{
	// Loaded with the checked loader so that an editor without the desktop platform stops here, before the
	// save prompt.
	FDesktopPlatformModule::Get();
	const FString PluginBaseDir = FPaths::ConvertRelativePathToFull(Plugin->GetBaseDir());

	if (!IsAllContentSaved(Plugin))
	{
		// The prompt lists every dirty package of the editor, not only the plugin's; the modder may decline.
		FEditorFileUtils::SaveDirtyPackages(true, true, true, false, false, true, nullptr);
	}

	// Asked again: the modder may have declined, cancelled or saved only part of the plugin.
	if (IsAllContentSaved(Plugin))
	{
		const TSharedPtr<SWindow> ParentWindow = FModuleManager::LoadModuleChecked<IMainFrameModule>(TEXT("MainFrame")).GetParentWindow();
		// Only read: the automation task places its notification itself and takes no parent window.
		if (ParentWindow.IsValid() && ParentWindow->GetNativeWindow().IsValid())
		{
			ParentWindow->GetNativeWindow()->GetOSWindowHandle();
		}
		PackagePlugin(Plugin);
	}
	else
	{
		FMessageDialog::Open(EAppMsgType::Ok, FText::Format(LOCTEXT("PackageUGCError_UnsavedContent", "You must save all assets in {0} before you can share it."), FText::FromString(Plugin->GetName())));
	}
}

void FUGCPackager::PackagePlugin(const TSharedRef<IPlugin>& Plugin)
{
	const FText PlatformDisplayName = LOCTEXT("PlatformName_Windows", "Windows");
	// The DLC is named after the descriptor file, which need not match the name the plugin is listed under.
	const FString DLCName = FPaths::GetBaseFilename(Plugin->GetDescriptorFileName());
	const FString LaunchDir = FPaths::ConvertRelativePathToFull(FPaths::LaunchDir());
	const FString PluginPath = FPaths::ConvertRelativePathToFull(Plugin->GetDescriptorFileName());
	const FString ProjectPath = FPaths::ConvertRelativePathToFull(FPaths::GetProjectFilePath());

	// The quoted launch folder ends in a separator, and the editor's path below it follows right after the
	// closing quote. The automation tool is handed the DLC name twice, and the line ends in a blank.
	const FString CommandLine = FString::Printf(TEXT("BuildDLC -Project=\"%s\" -PluginPath=\"%s\" -ue4exe=\"%s\"Moravane/Binaries/Win64/CalverlyPublicEditor-Cmd.exe -nocompile -TargetPlatform=WindowsNoEditor -dlcName=\"%s\",\"%s\" "), *ProjectPath, *PluginPath, *LaunchDir, *DLCName, *DLCName);

	const FText TaskName = FText::Format(LOCTEXT("UGCEditor_PackagePluginTaskName", "Cooking {0}"), FText::FromString(Plugin->GetName()));
	const FSlateBrush* TaskIcon = FUGCEditorStyle::Get().GetBrush(UGCPackagerPlugins::CookNotificationIconName);

	// The task's notification and the output log report the outcome; nothing here follows up on it yet, though
	// the callback already carries what a follow-up would need.
	IUATHelperModule::UatTaskResultCallack ResultCallback = [Version = FString(TEXT("1.0")), PlatformDisplayName, FriendlyName = Plugin->GetDescriptor().FriendlyName](FString, double) {
	};
	FModuleManager::LoadModuleChecked<IUATHelperModule>(TEXT("UATHelper")).CreateUatTask(CommandLine, PlatformDisplayName, TaskName, TaskName, TaskIcon, MoveTemp(ResultCallback), FString());
}

#undef LOCTEXT_NAMESPACE
