#pragma once

#include "CoreTypes.h"

class IPlatformFile;

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
