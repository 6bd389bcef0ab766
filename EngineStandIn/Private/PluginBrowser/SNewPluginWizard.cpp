#include "SNewPluginWizard.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/MessageDialog.h"
#include "Misc/Paths.h"
#include "PluginUtils.h"
#include "SPluginTemplateList.h"
#include "StandIn/Journal.h"
#include "StandIn/Records/NotificationRecord.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "NewPluginWizard"

void SNewPluginWizard::Construct(const FArguments& Args, TSharedPtr<SDockTab> InOwnerTab, TSharedPtr<IPluginWizardDefinition> InPluginWizardDefinition)
{
	OwnerTab = InOwnerTab;
	PluginWizardDefinition = InPluginWizardDefinition;
	check(PluginWizardDefinition.IsValid());

	// New plugins go to the project's folder, made absolute; mods to its Mods folder.
	PluginFolderPath = FPaths::ConvertRelativePathToFull(PluginWizardDefinition->IsMod() ? FPaths::ProjectDir() + TEXT("Mods/") : FPaths::ProjectPluginsDir());
	bIsPluginPathValid = true;

	const TSharedRef<SVerticalBox> MainContent = SNew(SVerticalBox);
	const TSharedPtr<SWidget> HeaderWidget = PluginWizardDefinition->GetCustomHeaderWidget();
	if (HeaderWidget.IsValid())
	{
		MainContent->AddSlot().AutoHeight()[HeaderWidget.ToSharedRef()];
	}

	MainContent->AddSlot()[SAssignNew(ListView, SPluginTemplateList)
							   .ListItemsSource(&PluginWizardDefinition->GetTemplatesSource())
							   .SelectionMode(PluginWizardDefinition->GetSelectionMode())
							   .OnSelectionChanged(FOnTemplateSelectionChanged::CreateSP(this, &SNewPluginWizard::OnTemplateSelectionChanged))];

	MainContent->AddSlot().AutoHeight()[SAssignNew(NameTextBox, SEditableTextBox)
											.HintText(PluginWizardDefinition->IsMod() ? LOCTEXT("ModNameTextHint", "Mod Name") : LOCTEXT("PluginNameTextHint", "Plugin Name"))
											.OnTextChanged(FOnTextChanged::CreateSP(this, &SNewPluginWizard::OnPluginNameTextChanged))];

	const FText CreateButtonLabel = PluginWizardDefinition->IsMod() ? LOCTEXT("CreateModButtonLabel", "Create Mod") : LOCTEXT("CreatePluginButtonLabel", "Create Plugin");
	MainContent->AddSlot().AutoHeight()[SNew(SButton)
											.IsEnabled(TAttribute<bool>::Create(TAttribute<bool>::FGetter::CreateSP(this, &SNewPluginWizard::CanCreatePlugin)))
											.Text(CreateButtonLabel)
											.OnClicked(FOnClicked::CreateSP(this, &SNewPluginWizard::OnCreatePluginClicked))];

	ChildSlot[MainContent];
	ValidateFullPluginPath();
}

void SNewPluginWizard::OnTemplateSelectionChanged(TSharedPtr<FPluginTemplateDescription> InItem, ESelectInfo::Type SelectInfo)
{
	PluginWizardDefinition->OnTemplateSelectionChanged(ListView->GetSelectedItems(), SelectInfo);
}

void SNewPluginWizard::OnPluginNameTextChanged(const FText& InText)
{
	PluginNameText = InText;
	ValidateFullPluginPath();
}

void SNewPluginWizard::ValidateFullPluginPath()
{
	const FString Name = PluginNameText.ToString();
	FText PluginNameError;
	// An empty name is refused without a word.
	bool bIsNewNameValid = !Name.IsEmpty();

	if (bIsNewNameValid)
	{
		FString IllegalCharacters;
		for (int32 Index = 0; Index < Name.Len(); ++Index)
		{
			const FString Char = Name.Mid(Index, 1);
			if (!FChar::IsAlnum(Name[Index]) && Char != TEXT("_") && !IllegalCharacters.Contains(Char))
			{
				IllegalCharacters += Char;
			}
		}
		if (!IllegalCharacters.IsEmpty())
		{
			PluginNameError = FText::Format(LOCTEXT("WrongPluginNameErrorText", "Plugin name cannot contain illegal characters like: \"{0}\""), FText::FromString(IllegalCharacters));
			bIsNewNameValid = false;
		}
	}

	if (bIsNewNameValid && !FChar::IsAlpha(Name[0]))
	{
		PluginNameError = LOCTEXT("PluginNameMustBeginWithACharacter", "Plugin names must begin with an alphabetic character.");
		bIsNewNameValid = false;
	}

	if (bIsNewNameValid)
	{
		for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
		{
			// FString's == ignores case, so "myroute" is taken when "MyRoute" exists.
			if (Plugin->GetName() == Name)
			{
				PluginNameError = LOCTEXT("PluginNameExistsErrorText", "A plugin with this name already exists!");
				bIsNewNameValid = false;
				break;
			}
		}
	}

	if (bIsNewNameValid && FPlatformFileManager::Get().GetPlatformFile().FileExists(*StandInPluginUtils::GetPluginFilePath(PluginFolderPath, Name)))
	{
		PluginNameError = LOCTEXT("PluginPathExistsErrorText", "A plugin already exists at this path!");
		bIsNewNameValid = false;
	}

	bIsPluginNameValid = bIsNewNameValid;
	NameTextBox->SetError(PluginNameError);
}

bool SNewPluginWizard::CanCreatePlugin() const
{
	return bIsPluginPathValid && bIsPluginNameValid && PluginWizardDefinition->HasValidTemplateSelection();
}

FReply SNewPluginWizard::OnCreatePluginClicked()
{
	const FString PluginName = PluginNameText.ToString();
	const bool bHasModules = PluginWizardDefinition->HasModules();

	StandInPluginUtils::FNewPluginParams CreationParams;
	CreationParams.TemplateFolders = PluginWizardDefinition->GetFoldersForSelection();
	CreationParams.bCanContainContent = PluginWizardDefinition->CanContainContent();
	CreationParams.bHasModules = bHasModules;
	CreationParams.ModuleDescriptorType = PluginWizardDefinition->GetPluginModuleDescriptor();
	CreationParams.LoadingPhase = PluginWizardDefinition->GetPluginLoadingPhase();
	PluginWizardDefinition->GetPluginIconPath(CreationParams.PluginIconPath);

	FText FailReason;
	const TSharedPtr<IPlugin> NewPlugin = StandInPluginUtils::CreateAndMountNewPlugin(PluginName, PluginFolderPath, CreationParams, FailReason);
	const bool bSucceeded = NewPlugin.IsValid();

	PluginWizardDefinition->PluginCreated(PluginName, bSucceeded);

	if (bSucceeded)
	{
		StandIn::AppendToJournal(std::make_shared<StandIn::FNotificationRecord>(FText::Format(LOCTEXT("PluginCreatedSuccessfully", "'{0}' was created successfully."), FText::FromString(PluginName)), StandIn::FNotificationRecord::ECompletionState::Success));
		if (const TSharedPtr<SDockTab> Tab = OwnerTab.Pin())
		{
			Tab->RequestCloseTab();
		}
		return FReply::Handled();
	}

	const FText Title = LOCTEXT("UnableToCreatePlugin", "Unable to create plugin");
	FMessageDialog::Open(EAppMsgType::Ok, FailReason, &Title);
	return FReply::Unhandled();
}

#undef LOCTEXT_NAMESPACE
