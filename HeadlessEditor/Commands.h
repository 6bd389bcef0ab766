#pragma once

#include "CommandLine.h"

class FSessionOutput;

// Runs the command through what a person sees of the started module, printing what it lists to Output;
// returns the exit status.
int RunCommand(const FEditorCommandLine& CommandLine, FSessionOutput& Output);
