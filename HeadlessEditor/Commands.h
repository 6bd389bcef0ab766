#pragma once

#include "CommandLine.h"

// Runs the command through what a person sees of the started module; returns the exit status.
int RunCommand(const FEditorCommandLine& CommandLine);
