#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

struct CORE_API FPlatformProcess
{
	// Absolute binaries folder with a trailing '/'.
	static const TCHAR* BaseDir();
	static bool ExecProcess(const TCHAR* URL, const TCHAR* Params, int32* OutReturnCode, FString* OutStdOut, FString* OutStdErr, const TCHAR* OptionalWorkingDirectory = nullptr);
};
