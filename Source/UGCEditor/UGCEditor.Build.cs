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
			// IPlugin, for the per-plugin cook commands.
			"Projects",
		});
	}
}
