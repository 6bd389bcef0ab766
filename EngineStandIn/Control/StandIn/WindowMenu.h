#pragma once

// The editor's Window menu, as far as the nomad tabs go. The module never includes this header.
#include "CoreMinimal.h"
#include <vector>

namespace StandIn
{
	// A nomad tab the Window menu lists, under its spawner's display name; a spawner of menu type Disabled
	// is listed greyed out, one of type Hidden not at all.
	struct FWindowMenuTab
	{
		FText DisplayName;
		bool bIsEnabled = true;
	};
	// The listed tabs, in the order their spawners were registered.
	std::vector<FWindowMenuTab> WindowMenuTabs();
}
