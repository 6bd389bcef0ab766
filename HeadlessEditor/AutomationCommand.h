#pragma once

#include "CommandLine.h"

// Runs the registered automation tests the filter selects, as "Automation RunTests" does; returns the exit
// status: 0 when all passed, 1 when one failed, 2 when none matched.
int RunAutomation(const FEditorCommandLine& CommandLine);
