// Copyright UGCEditor contributors. All Rights Reserved.

#include "CoreMinimal.h"
#include "Misc/AutomationTest.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "UGCPackager.h"

#include "Interfaces/IPluginManager.h"

// Which plugins "Cook Mod" offers, judged against the editor's own plugin list. Only the look-up runs: the
// menus would register commands, and a chosen entry would start a cook.
BEGIN_DEFINE_SPEC(FCookMenusSpec, TEXT("UGCEditor.CookMenus"), EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)
TArray<TSharedRef<IPlugin>> Offered;

bool IsOffered(const TSharedRef<IPlugin>& Plugin) const
{
	for (const TSharedRef<IPlugin>& Candidate : Offered)
	{
		if (Candidate == Plugin)
		{
			return true;
		}
	}
	return false;
}
END_DEFINE_SPEC(FCookMenusSpec)

void FCookMenusSpec::Define()
{
	BeforeEach([this]() {
		Offered.Reset();
		MakeShared<FUGCPackager>()->FindPackageablePlugins(Offered);
	});

	It(TEXT("should offer every plugin of the project's Plugins and Mods folders"), [this]() {
		for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
		{
			const bool bProjectsOwn = Plugin->GetLoadedFrom() == EPluginLoadedFrom::Project && (Plugin->GetType() == EPluginType::Project || Plugin->GetType() == EPluginType::Mod);
			if (bProjectsOwn)
			{
				TestTrue(*FString::Printf(TEXT("%s offered"), *Plugin->GetName()), IsOffered(Plugin));
			}
		}
	});

	It(TEXT("should offer no engine plugin"), [this]() {
		for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
		{
			if (Plugin->GetLoadedFrom() == EPluginLoadedFrom::Engine || Plugin->GetType() == EPluginType::Engine)
			{
				TestFalse(*FString::Printf(TEXT("%s offered"), *Plugin->GetName()), IsOffered(Plugin));
			}
		}
	});

	It(TEXT("should offer no plugin from a folder outside the project"), [this]() {
		for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
		{
			if (Plugin->GetType() == EPluginType::External || Plugin->GetType() == EPluginType::Enterprise)
			{
				TestFalse(*FString::Printf(TEXT("%s offered"), *Plugin->GetName()), IsOffered(Plugin));
			}
		}
	});

	It(TEXT("should list the plugins in the editor's own order"), [this]() {
		int32 Next = 0;
		for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
		{
			if (Next < Offered.Num() && Offered[Next] == Plugin)
			{
				++Next;
			}
		}
		TestEqual(TEXT("plugins found in the plugin manager's order"), Next, Offered.Num());
	});
}

#endif
