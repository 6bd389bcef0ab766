#pragma once

// The modules the stand-in's module manager can load; not part of the control surface.
#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include <functional>
#include <vector>

namespace StandInModules
{
	// Makes a new module object, as a module's InitializeModule does.
	using FInitializeModule = std::function<IModuleInterface*()>;

	// Null for a name nothing registered.
	const FInitializeModule* FindInitializer(const FName ModuleName);

	// A module outside the stand-in's own list becomes loadable by name.
	void Register(const FName ModuleName, FInitializeModule Initializer);

	// The module manager's own state, for the stand-in's services only.
	class FModuleManagerAccess
	{
	public:
		// Shuts every loaded module down and unloads it, the last loaded first.
		static void UnloadAll();
		static std::vector<FName> LoadedModuleNames();
	};

	// Shuts every loaded module down and unloads it, the last loaded first, then loads what the world's
	// editor starts with.
	void StartEditorModules();
}
