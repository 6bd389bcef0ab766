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
			// IPluginManager and the plugin descriptor; the wizard interface's header uses its module descriptor types.
			"Projects",
			// The plugin wizard that the "Create New Mod" tab hosts, and the interface its definition implements.
			"PluginBrowser",
		});
	}
}
