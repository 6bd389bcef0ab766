#pragma once

#include "CommandLine.h"

// What a session needs of the project, checked in the world just set up before anything runs in it: the
// editor does not start without a readable project file, and the "Create Mod" wizard reads the project's
// mod templates. Throws FUsageError that says which file or folder is missing or unreadable.
void RefuseUnusableProject(const FEditorCommandLine& CommandLine);
