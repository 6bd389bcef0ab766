#include "DesktopPlatformModule.h"

namespace
{
	// Nothing of the desktop platform is asked for yet; the object only has to exist, as the module's does.
	class FStandInDesktopPlatform final : public IDesktopPlatform
	{
	};
}

void FDesktopPlatformModule::StartupModule()
{
	DesktopPlatform = new FStandInDesktopPlatform();
}

void FDesktopPlatformModule::ShutdownModule()
{
	delete DesktopPlatform;
	DesktopPlatform = nullptr;
}

namespace StandInModules
{
	IModuleInterface* InitializeDesktopPlatformModule()
	{
		return new FDesktopPlatformModule();
	}
}
