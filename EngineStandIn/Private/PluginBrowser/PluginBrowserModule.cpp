#include "IPluginBrowser.h"
#include "SNewPluginWizard.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
	class FPluginBrowserModule : public IPluginBrowser
	{
	public:
		virtual TSharedRef<SDockTab> SpawnPluginCreatorTab(const FSpawnTabArgs& SpawnTabArgs, TSharedPtr<IPluginWizardDefinition> PluginWizardDefinition) override
		{
			const TSharedRef<SDockTab> ResultTab = SNew(SDockTab).TabRole(ETabRole::NomadTab);
			const TSharedRef<SWidget> TabContentWidget = SNew(SNewPluginWizard, ResultTab, PluginWizardDefinition);
			ResultTab->SetContent(TabContentWidget);
			return ResultTab;
		}
	};
}

namespace StandInModules
{
	IModuleInterface* InitializePluginBrowserModule()
	{
		return new FPluginBrowserModule();
	}
}
