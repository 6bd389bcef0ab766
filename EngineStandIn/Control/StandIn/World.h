#pragma once

// World set-up: the Windows world the stand-in engine runs in. The module never includes this header.
#include "CoreMinimal.h"
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace StandIn
{
	// A package the editor holds with changes not yet saved.
	struct FDirtyPackage
	{
		// "/MyRoute/Maps/Main"
		FString LongPackageName;
		// A map is a world package; anything else is a content package.
		bool bIsMap = false;
	};

	// The button the user clicks in the save prompt: "Save Selected" with every package ticked, "Don't
	// Save" (offered only when the prompt can be declined) or "Cancel".
	enum class ESavePromptAnswer
	{
		SaveAll,
		DontSave,
		Cancel
	};

	struct FWorld
	{
		// Host folder that holds the drives: "C:/x" is the host file "<DriveRoot>/C/x".
		std::string DriveRoot;
		// As GetCurrentDirectoryW gave it at start-up, plus '/'.
		FString LaunchDir = TEXT("C:/Work/");
		// The engine binaries folder, which is also the editor's current directory.
		FString BaseDir = TEXT("C:/Work/Engine/Binaries/Win64/");
		FString ProjectFilePath = TEXT("C:/Work/Moravane/Moravane.uproject");
		// The active culture's localisation table, by namespace and key (UTF-8): a localised literal shows
		// its translation where there is one and its source text otherwise, as the editor's does.
		std::map<std::pair<std::string, std::string>, std::string> Translations;
		// Whether Slate is up (FSlateApplication::IsInitialized); a test brings it up when it needs the renderer.
		bool bSlateInitialized = false;
		// Whether the engine's PluginBrowser module is loaded, as when its plugin is enabled.
		bool bPluginBrowserLoaded = true;
		// The editor's unsaved packages, in the order the editor lists them; saving one clears its dirty state.
		std::vector<FDirtyPackage> DirtyPackages;
		// How the user answers every save prompt.
		ESavePromptAnswer SavePromptAnswer = ESavePromptAnswer::SaveAll;
	};

	// Starts a fresh world: drive C: present, the journal emptied, the physical layer on top of the
	// platform-file chain, and UGC_DRIVE_ROOT and PATH (with the stand-in's cmd.exe first) set for child
	// programs.
	void ResetWorld(const FWorld& World);
	const FWorld& GetWorld();

	// What the engine's plugin manager does at start-up: finds the plugins of the world's engine
	// (<launch>/Engine/Plugins), of its project (Plugins, Mods, and the project file's
	// AdditionalPluginDirectories), enables them as the project file and their descriptors say, and mounts
	// the content of the enabled ones. A world without a project file counts as a project that lists nothing.
	void DiscoverPlugins();

	// The editor's start-up of its modules: every loaded module shut down and unloaded, then, in the Default
	// loading phase, the modules the project file lists for that phase, in its order, and after them the
	// enabled plugins' modules of that phase, as the engine starts them. A world reset starts only the
	// plugins' modules.
	void LoadStartupModules();

	// The names of the loaded modules, in the order they were loaded.
	std::vector<FString> LoadedModules();

	// Host path of a Windows path ("C:/Work/x" -> "<DriveRoot>/C/Work/x"); relative paths are taken from
	// the editor's current directory.
	std::string HostPath(const FString& WindowsPath);

	std::string ToUtf8(const FString& Text);
	FString FromUtf8(const std::string& Text);
}
