#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"

struct FSlateBrush;

// Runs the automation tool in the background with a progress notification, module "UATHelper".
class IUATHelperModule : public IModuleInterface
{
public:
	// Told the task's result and how many seconds it ran. The misspelling is the engine's.
	typedef TFunction<void(FString, double)> UatTaskResultCallack;

	// Starts the task and returns at once.
	virtual void CreateUatTask(const FString& CommandLine, const FText& PlatformDisplayName, const FText& TaskName, const FText& TaskShortName, const FSlateBrush* TaskIcon, UatTaskResultCallack ResultCallback = UatTaskResultCallack(), const FString& ResultLocation = FString()) = 0;
};
