// Copyright UGCEditor contributors. All Rights Reserved.

using UnrealBuildTool;

public class UGCEditor : ModuleRules
{
	public UGCEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
		});

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"Slate",
			"SlateCore",
			// SComboBox's template code, instantiated in this module, refers to EKeys.
			"InputCore",
			// IPlugin and IPluginManager, the plugin descriptor, and the module descriptor types of the wizard interface.
			"Projects",
			// The plugin wizard that the "Create New Mod" tab hosts, and the interface its definition implements.
			"PluginBrowser",
		});
	}
}
