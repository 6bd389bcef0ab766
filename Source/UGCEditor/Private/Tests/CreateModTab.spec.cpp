// Copyright UGCEditor contributors. All Rights Reserved.

#include "CoreMinimal.h"
#include "Misc/AutomationTest.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Framework/Docking/TabManager.h"
#include "Modules/ModuleManager.h"
#include "Widgets/Docking/SDockTab.h"

// The tab the module registered at start-up; a spec cannot register a second one under the same name.
BEGIN_DEFINE_SPEC(FCreateModTabSpec, TEXT("UGCEditor.CreateModTab"), EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)
const FName CreateModTabName = TEXT("UGCPluginCreator");
/** The tab the spec opened; a tab the modder already had open is left alone. */
TSharedPtr<SDockTab> OpenedTab;
END_DEFINE_SPEC(FCreateModTabSpec)

void FCreateModTabSpec::Define()
{
	It(TEXT("should be registered with the global tab manager as UGCPluginCreator"), [this]() {
		TestTrue(TEXT("tab spawner registered"), FGlobalTabmanager::Get()->HasTabSpawner(CreateModTabName));
	});

	Describe(TEXT("once opened"), [this]() {
		BeforeEach([this]() {
			// The tab holds the Plugin Browser's wizard; without that plugin the module does not open it.
			TestTrue(TEXT("the Plugin Browser is loaded"), FModuleManager::Get().IsModuleLoaded(TEXT("PluginBrowser")));
			if (!FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(CreateModTabName)).IsValid())
			{
				OpenedTab = FGlobalTabmanager::Get()->TryInvokeTab(FTabId(CreateModTabName));
			}
		});

		AfterEach([this]() {
			if (OpenedTab.IsValid())
			{
				OpenedTab->RequestCloseTab();
				OpenedTab.Reset();
			}
		});

		It(TEXT("should be titled Create New Mod"), [this]() {
			const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(CreateModTabName));
			if (TestValid(TEXT("tab"), Tab))
			{
				TestEqual(TEXT("tab title"), *Tab->GetTabLabel().ToString(), TEXT("Create New Mod"));
			}
		});
	});
}

#endif
