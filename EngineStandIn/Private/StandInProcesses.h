#pragma once

// How the stand-in starts a child, shared by ExecProcess and the monitored processes of automation tasks;
// not part of the control surface.
#include "CoreMinimal.h"
#include "Common/WindowsCommandLine.h"
#include <sys/types.h>

namespace StandInProcesses
{
	// As CreateProcess with the Windows command line CommandLine: the program it names is mapped into the
	// sandbox (a bare name found on PATH) and started in WorkingDirectory (null: the editor's current
	// directory). The command line is journalled first. A program that cannot start gives -1, its Win32
	// error in OutWindowsError, and the warnings the engine's CreateProc logs with URL and Params.
	pid_t Start(const FString& CommandLine, const TCHAR* URL, const TCHAR* Params, const WindowsCommandLine::FStandardHandles& Handles, const TCHAR* WorkingDirectory, int32& OutWindowsError);
}
