#pragma once

#include "CoreMinimal.h"

// A plugin as the plugin manager knows it.
class IPlugin
{
public:
	virtual ~IPlugin() {}

	virtual const FString& GetName() const = 0;
	// The descriptor's folder, without a trailing slash.
	virtual FString GetBaseDir() const = 0;
};
