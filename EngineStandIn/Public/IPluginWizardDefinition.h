#pragma once

#include "CoreMinimal.h"
#include "Framework/Views/ITypedTableView.h"
#include "ModuleDescriptor.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"

struct FSlateDynamicImageBrush;

// A template the new-plugin wizard offers: its folder is copied into the new plugin.
struct FPluginTemplateDescription
{
	FText Name;
	FText Description;
	FString OnDiskPath;
	TSharedPtr<FSlateDynamicImageBrush> PluginIconDynamicImageBrush;
	bool bCanContainContent;
	EHostType::Type ModuleDescriptorType;
	ELoadingPhase::Type LoadingPhase;

	FPluginTemplateDescription(FText InName, FText InDescription, FString InOnDiskPath, bool InCanContainContent, EHostType::Type InModuleDescriptorType, ELoadingPhase::Type InLoadingPhase = ELoadingPhase::Default)
		: Name(InName), Description(InDescription), OnDiskPath(InOnDiskPath), bCanContainContent(InCanContainContent), ModuleDescriptorType(InModuleDescriptorType), LoadingPhase(InLoadingPhase)
	{
	}
};

// What the new-plugin wizard asks of whoever drives it.
class IPluginWizardDefinition : public TSharedFromThis<IPluginWizardDefinition>
{
public:
	virtual ~IPluginWizardDefinition() {}

	virtual const TArray<TSharedRef<FPluginTemplateDescription>>& GetTemplatesSource() const = 0;
	virtual void OnTemplateSelectionChanged(TArray<TSharedRef<FPluginTemplateDescription>> InSelectedItems, ESelectInfo::Type SelectInfo) = 0;
	virtual bool HasValidTemplateSelection() const = 0;
	virtual ESelectionMode::Type GetSelectionMode() const = 0;
	virtual TArray<TSharedPtr<FPluginTemplateDescription>> GetSelectedTemplates() const = 0;
	virtual void ClearTemplateSelection() = 0;
	virtual bool AllowsEnginePlugins() const = 0;
	virtual bool CanShowOnStartup() const = 0;
	virtual bool CanContainContent() const = 0;
	virtual bool HasModules() const = 0;
	virtual bool IsMod() const = 0;
	virtual void OnShowOnStartupCheckboxChanged(ECheckBoxState CheckBoxState) = 0;
	virtual ECheckBoxState GetShowOnStartupCheckBoxState() const = 0;
	virtual TSharedPtr<class SWidget> GetCustomHeaderWidget() = 0;
	virtual FText GetInstructions() const = 0;
	// True when the default icon is wanted instead.
	virtual bool GetPluginIconPath(FString& OutIconPath) const = 0;
	virtual EHostType::Type GetPluginModuleDescriptor() const = 0;
	virtual ELoadingPhase::Type GetPluginLoadingPhase() const = 0;
	// True when the default icon is wanted instead.
	virtual bool GetTemplateIconPath(TSharedRef<FPluginTemplateDescription> InTemplate, FString& OutIconPath) const = 0;
	virtual FString GetPluginFolderPath() const = 0;
	// Copied into the new plugin in this order.
	virtual TArray<FString> GetFoldersForSelection() const = 0;
	virtual void PluginCreated(const FString& PluginName, bool bWasSuccessful) const = 0;
};
