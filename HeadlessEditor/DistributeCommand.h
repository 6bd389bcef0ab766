#pragma once

#include "CommandLine.h"

// Opens the paking dialog and operates it as the command line says; returns the exit status.
int RunDistribute(const FEditorCommandLine& CommandLine);
