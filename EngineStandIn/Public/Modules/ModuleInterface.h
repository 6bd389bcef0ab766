#pragma once

#include "CoreTypes.h"

// What the module manager calls on a module; every step does nothing unless the module says otherwise.
class IModuleInterface
{
public:
	virtual ~IModuleInterface() {}

	virtual void StartupModule() {}
	virtual void PreUnloadCallback() {}
	virtual void PostLoadCallback() {}
	virtual void ShutdownModule() {}
	virtual bool SupportsDynamicReloading() { return true; }
	virtual bool SupportsAutomaticShutdown() { return true; }
	virtual bool IsGameModule() const { return false; }
};
