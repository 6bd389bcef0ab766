#pragma once

// The packages the editor has loaded; not part of the control surface.
#include "CoreMinimal.h"
#include "StandIn/World.h"
#include "UObject/Package.h"
#include <vector>

namespace StandInPackages
{
	struct FLoadedPackage
	{
		UPackage* Package;
		bool bIsMap;
	};

	// The world's packages replace the loaded ones; each starts dirty.
	void Reset(const std::vector<StandIn::FDirtyPackage>& DirtyPackages);
	// In the world's order.
	const std::vector<FLoadedPackage>& LoadedPackages();
}
