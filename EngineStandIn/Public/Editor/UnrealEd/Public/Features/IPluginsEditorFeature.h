#pragma once

#include "CoreMinimal.h"
#include "Features/IModularFeature.h"

// Empty in 4.26; the Plugin Browser's module interface derives from it.
class IPluginsEditorFeature : public IModularFeature
{
public:
};
