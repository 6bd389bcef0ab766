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
			"CoreUObject",
			"ApplicationCore",
			"UnrealEd",
			"Projects",
			// Reached only through their module interfaces, loaded by name when a cook starts.
			"DesktopPlatform",
			"MainFrame",
			"UATHelper",
		});
	}
}
