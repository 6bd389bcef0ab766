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
			// UPackage and FPackageName, for the packages still to be saved before a cook.
			"CoreUObject",
			"Slate",
			"SlateCore",
			// SComboBox's template code, instantiated in this module, refers to EKeys.
			"InputCore",
			// The main frame's native window.
			"ApplicationCore",
			// FEditorFileUtils and its save prompt.
			"UnrealEd",
			// IPlugin and IPluginManager, the plugin descriptor, and the module descriptor types of the wizard interface.
			"Projects",
			// The menu and toolbar extensibility managers the module's entries are handed to.
			"LevelEditor",
			// Loaded at start-up so that the asset registry is up before the first cook.
			"AssetRegistry",
			// The plugin wizard that the "Create New Mod" tab hosts, and the interface its definition implements.
			"PluginBrowser",
			// Reached only through their module interfaces, loaded by name when a cook starts.
			"DesktopPlatform",
			"MainFrame",
			"UATHelper",
		});
	}
}
