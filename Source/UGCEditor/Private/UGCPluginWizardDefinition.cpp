// Copyright UGCEditor contributors. All Rights Reserved.

#include "UGCPluginWizardDefinition.h"

#include "Brushes/SlateDynamicImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "PluginDescriptor.h"
#include "Rendering/SlateRenderer.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "UGCPluginWizard"

namespace UGCPluginWizardTemplates
{
	FString MakeTemplateFolder(const FString& PluginBaseDir, const FString& FolderName)
	{
		return PluginBaseDir / TEXT("Templates") / FolderName;
	}

	TSharedRef<FPluginTemplateDescription> MakeTemplate(const FString& DisplayName, const FString& FolderName)
	{
		return MakeShared<FPluginTemplateDescription>(FText::FromString(DisplayName), FText::GetEmpty(), FolderName, true, EHostType::Runtime, ELoadingPhase::Default);
	}
}

FUGCPluginWizardDefinition::FUGCPluginWizardDefinition()
{
	PluginBaseDir = FPaths::ProjectDir();

	BaseTemplate = UGCPluginWizardTemplates::MakeTemplate(FString(), TEXT("BaseTemplate"));
	BaseTemplateFolder = UGCPluginWizardTemplates::MakeTemplateFolder(PluginBaseDir, BaseTemplate->OnDiskPath);

	TemplateDefinitions.Add(UGCPluginWizardTemplates::MakeTemplate(TEXT("Route"), TEXT("Route")));
	TemplateDefinitions.Add(UGCPluginWizardTemplates::MakeTemplate(TEXT("Scenario"), TEXT("Scenario")));
	// Listed as one word, copied from the folder with the space: the two names differ on purpose.
	TemplateDefinitions.Add(UGCPluginWizardTemplates::MakeTemplate(TEXT("ServiceMode"), TEXT("Service Mode")));
	TemplateDefinitions.Add(UGCPluginWizardTemplates::MakeTemplate(TEXT("Blank"), TEXT("Blank")));
}

const TArray<TSharedRef<FPluginTemplateDescription>>& FUGCPluginWizardDefinition::GetTemplatesSource() const
{
	return TemplateDefinitions;
}

void FUGCPluginWizardDefinition::OnTemplateSelectionChanged(TArray<TSharedRef<FPluginTemplateDescription>> InSelectedItems, ESelectInfo::Type SelectInfo)
{
	SelectedTemplates.Reset(InSelectedItems.Num());
	for (const TSharedRef<FPluginTemplateDescription>& Item : InSelectedItems)
	{
		SelectedTemplates.Add(Item);
	}
}

bool FUGCPluginWizardDefinition::HasValidTemplateSelection() const
{
	return true;
}

ESelectionMode::Type FUGCPluginWizardDefinition::GetSelectionMode() const
{
	return ESelectionMode::Multi;
}

TArray<TSharedPtr<FPluginTemplateDescription>> FUGCPluginWizardDefinition::GetSelectedTemplates() const
{
	return SelectedTemplates;
}

void FUGCPluginWizardDefinition::ClearTemplateSelection()
{
	SelectedTemplates.Empty();
}

bool FUGCPluginWizardDefinition::AllowsEnginePlugins() const
{
	return false;
}

bool FUGCPluginWizardDefinition::CanShowOnStartup() const
{
	return true;
}

bool FUGCPluginWizardDefinition::CanContainContent() const
{
	// The base template alone makes a content mod.
	if (SelectedTemplates.Num() == 0)
	{
		return true;
	}

	for (const TSharedPtr<FPluginTemplateDescription>& Template : SelectedTemplates)
	{
		if (Template->bCanContainContent)
		{
			return true;
		}
	}
	return false;
}

bool FUGCPluginWizardDefinition::HasModules() const
{
	for (const TSharedPtr<FPluginTemplateDescription>& Template : SelectedTemplates)
	{
		if (FPaths::DirectoryExists(UGCPluginWizardTemplates::MakeTemplateFolder(PluginBaseDir, Template->OnDiskPath) / TEXT("Source")))
		{
			return true;
		}
	}
	return false;
}

bool FUGCPluginWizardDefinition::IsMod() const
{
	// New mods belong in the project's Plugins folder, where distribution looks for cooked plugins, not in Mods.
	return false;
}

void FUGCPluginWizardDefinition::OnShowOnStartupCheckboxChanged(ECheckBoxState CheckBoxState)
{
}

ECheckBoxState FUGCPluginWizardDefinition::GetShowOnStartupCheckBoxState() const
{
	return ECheckBoxState::Unchecked;
}

TSharedPtr<SWidget> FUGCPluginWizardDefinition::GetCustomHeaderWidget()
{
	// Made by the first header that can load the image and kept for any later one; until then each header tries again.
	if (!IconBrush.IsValid())
	{
		FString IconPath;
		GetPluginIconPath(IconPath);

		const FName IconResourceName(*IconPath);
		const FIntPoint IconSize = FSlateApplication::Get().GetRenderer()->GenerateDynamicImageResource(IconResourceName);
		if (IconSize.X >= 1 && IconSize.Y >= 1)
		{
			IconBrush = MakeShared<FSlateDynamicImageBrush>(IconResourceName, FVector2D(IconSize.X, IconSize.Y), FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
		}
	}

	// clang-format off
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.Padding(4.0f)
		[
			SNew(SBox)
			.WidthOverride(80.0f)
			.HeightOverride(10.0f)
			[
				SNew(SImage)
				.Image(IconBrush.Get())
			]
		];
	// clang-format on
}

FText FUGCPluginWizardDefinition::GetInstructions() const
{
	return LOCTEXT("CreateNewUGCPanel", "Give your new DLC package a name and Click 'Create Mod' to make a new content only DLC package.");
}

bool FUGCPluginWizardDefinition::GetPluginIconPath(FString& OutIconPath) const
{
	OutIconPath = BaseTemplateFolder / TEXT("Resources/Icon128.png");
	return false;
}

EHostType::Type FUGCPluginWizardDefinition::GetPluginModuleDescriptor() const
{
	return BaseTemplate->ModuleDescriptorType;
}

ELoadingPhase::Type FUGCPluginWizardDefinition::GetPluginLoadingPhase() const
{
	return BaseTemplate->LoadingPhase;
}

bool FUGCPluginWizardDefinition::GetTemplateIconPath(TSharedRef<FPluginTemplateDescription> InTemplate, FString& OutIconPath) const
{
	OutIconPath = PluginBaseDir / TEXT("Resources");

	const FString* IconFile = TemplateIconFiles.Find(InTemplate->Name.ToString());
	OutIconPath /= IconFile ? *IconFile : FString(TEXT("Icon128.png"));
	return false;
}

FString FUGCPluginWizardDefinition::GetPluginFolderPath() const
{
	return BaseTemplateFolder;
}

TArray<FString> FUGCPluginWizardDefinition::GetFoldersForSelection() const
{
	TArray<FString> Folders;
	Folders.Reserve(SelectedTemplates.Num() + 1);
	Folders.Add(BaseTemplateFolder);
	for (const TSharedPtr<FPluginTemplateDescription>& Template : SelectedTemplates)
	{
		Folders.Add(UGCPluginWizardTemplates::MakeTemplateFolder(PluginBaseDir, Template->OnDiskPath));
	}
	return Folders;
}

void FUGCPluginWizardDefinition::PluginCreated(const FString& PluginName, bool bWasSuccessful) const
{
	if (!bWasSuccessful)
	{
		return;
	}

	TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(PluginName);
	if (!Plugin.IsValid())
	{
		return;
	}

	FPluginDescriptor Descriptor = Plugin->GetDescriptor();
	Descriptor.Category = TEXT("DLC");

	// The mod is made either way; a category left as the wizard wrote it is not worth interrupting the user.
	FText FailReason;
	Plugin->UpdateDescriptor(Descriptor, FailReason);
}

#undef LOCTEXT_NAMESPACE
