#pragma once

#include "CoreMinimal.h"

// The editor's index of assets; the stand-in's module uses none of its queries.
class IAssetRegistry
{
public:
	virtual ~IAssetRegistry() {}
};
