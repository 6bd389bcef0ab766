#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class SWindow;

// The editor's main frame, module "MainFrame".
class IMainFrameModule : public IModuleInterface
{
public:
	// The main frame's window, which the editor's other windows belong to; null before it exists.
	virtual TSharedPtr<SWindow> GetParentWindow() const = 0;
};
