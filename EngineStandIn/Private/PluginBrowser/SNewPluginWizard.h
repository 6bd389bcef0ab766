#pragma once

// The Plugin Browser's new-plugin wizard, as small as the stand-in needs it: the definition's header, the
// template list, the name box with its error, and the create button that the name checks enable.
#include "CoreMinimal.h"
#include "IPluginWizardDefinition.h"
#include "Input/Reply.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SDockTab;
class SEditableTextBox;
class SPluginTemplateList;

class SNewPluginWizard : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SNewPluginWizard) {}
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& Args, TSharedPtr<SDockTab> InOwnerTab, TSharedPtr<IPluginWizardDefinition> InPluginWizardDefinition);

private:
	void OnTemplateSelectionChanged(TSharedPtr<FPluginTemplateDescription> InItem, ESelectInfo::Type SelectInfo);
	void OnPluginNameTextChanged(const FText& InText);
	void ValidateFullPluginPath();
	bool CanCreatePlugin() const;
	FReply OnCreatePluginClicked();

	TWeakPtr<SDockTab> OwnerTab;
	TSharedPtr<IPluginWizardDefinition> PluginWizardDefinition;
	TSharedPtr<SPluginTemplateList> ListView;
	TSharedPtr<SEditableTextBox> NameTextBox;
	FString PluginFolderPath;
	FText PluginNameText;
	bool bIsPluginPathValid = false;
	bool bIsPluginNameValid = false;
};
