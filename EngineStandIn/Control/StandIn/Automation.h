#pragma once

// The automation controller of the editor's Session Frontend, as "Automation RunTests" drives it.
#include "CoreMinimal.h"

namespace StandIn
{
	struct FAutomationRunSummary
	{
		int32 TestsRun = 0;
		int32 TestsFailed = 0;
	};

	// Runs every registered test whose full path contains Filter (blanks removed from both, letter case
	// ignored), in the order of their full paths, and logs each outcome as the engine's controller does.
	FAutomationRunSummary RunAutomationTests(const FString& Filter);
}
