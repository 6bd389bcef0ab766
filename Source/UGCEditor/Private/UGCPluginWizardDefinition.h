// Copyright UGCEditor contributors. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IPluginWizardDefinition.h"
#include "ModuleDescriptor.h"

struct FSlateDynamicImageBrush;

/**
 * Answers the Plugin Browser's wizard with the project's mod templates. Every new mod gets the hidden base
 * template first and then each chosen template on top of it; afterwards its category becomes "DLC".
 */
class FUGCPluginWizardDefinition : public IPluginWizardDefinition
{
public:
	FUGCPluginWizardDefinition();

	// IPluginWizardDefinition interface
	virtual const TArray<TSharedRef<FPluginTemplateDescription>>& GetTemplatesSource() const override;
	virtual void OnTemplateSelectionChanged(TArray<TSharedRef<FPluginTemplateDescription>> InSelectedItems, ESelectInfo::Type SelectInfo) override;
	/** Always true: with nothing chosen the mod is made from the base template alone. */
	virtual bool HasValidTemplateSelection() const override;
	virtual ESelectionMode::Type GetSelectionMode() const override;
	virtual TArray<TSharedPtr<FPluginTemplateDescription>> GetSelectedTemplates() const override;
	virtual void ClearTemplateSelection() override;
	virtual bool AllowsEnginePlugins() const override;
	virtual bool CanShowOnStartup() const override;
	virtual bool CanContainContent() const override;
	/** True when a chosen template brings a Source folder; the base template's own is not counted. */
	virtual bool HasModules() const override;
	virtual bool IsMod() const override;
	virtual void OnShowOnStartupCheckboxChanged(ECheckBoxState CheckBoxState) override;
	virtual ECheckBoxState GetShowOnStartupCheckBoxState() const override;
	/** The plugin icon beside the instructions, in a flat strip. */
	virtual TSharedPtr<class SWidget> GetCustomHeaderWidget() override;
	virtual FText GetInstructions() const override;
	/** The base template's icon; returns false since the base template always brings one. */
	virtual bool GetPluginIconPath(FString& OutIconPath) const override;
	virtual EHostType::Type GetPluginModuleDescriptor() const override;
	virtual ELoadingPhase::Type GetPluginLoadingPhase() const override;
	/** The project's own icon, unless TemplateIconFiles names another file for the template; returns false. */
	virtual bool GetTemplateIconPath(TSharedRef<FPluginTemplateDescription> InTemplate, FString& OutIconPath) const override;
	virtual FString GetPluginFolderPath() const override;
	/** The base template's folder, then each chosen template's in selection order, so later files override earlier ones. */
	virtual TArray<FString> GetFoldersForSelection() const override;
	/** Files the new mod under the "DLC" category. */
	virtual void PluginCreated(const FString& PluginName, bool bWasSuccessful) const override;
	// End of IPluginWizardDefinition interface

private:
	/** The templates offered to the user, in display order. */
	TArray<TSharedRef<FPluginTemplateDescription>> TemplateDefinitions;

	/** The user's current choice, in the order the wizard reported it. */
	TArray<TSharedPtr<FPluginTemplateDescription>> SelectedTemplates;

	/** The project directory, which holds the Templates and Resources folders. */
	FString PluginBaseDir;

	/** Copied into every new mod before any chosen template. */
	FString BaseTemplateFolder;

	/** Never offered to the user; it gives every mod its descriptor, icon and module settings. */
	TSharedPtr<FPluginTemplateDescription> BaseTemplate;

	/** Icon file names under the project's Resources folder, by template display name. */
	TMap<FString, FString> TemplateIconFiles;

	/** The header's icon; stays empty until the image loads. */
	TSharedPtr<FSlateDynamicImageBrush> IconBrush;
};
