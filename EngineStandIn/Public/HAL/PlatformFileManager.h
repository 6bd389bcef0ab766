#pragma once

#include "CoreTypes.h"
#include "GenericPlatform/GenericPlatformFile.h"

class CORE_API FPlatformFileManager
{
public:
	static FPlatformFileManager& Get();
	// The top of the platform-file chain.
	IPlatformFile& GetPlatformFile();
	void SetPlatformFile(IPlatformFile& NewTopmostPlatformFile);

private:
	IPlatformFile* TopmostPlatformFile = nullptr;
};
