#pragma once

#include "CoreMinimal.h"

// The desktop's dialogs and project services. Nothing of it is called by the module, so it declares none.
class IDesktopPlatform
{
public:
	virtual ~IDesktopPlatform() {}
};
