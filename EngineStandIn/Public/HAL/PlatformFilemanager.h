#pragma once

#include "CoreTypes.h"

class IPlatformFile;

class CORE_API FPlatformFileManager
{
	// The top of the chain; each layer reaches the next through GetLowerLevel().
	class IPlatformFile* TopmostPlatformFile;

public:
	FPlatformFileManager();
	IPlatformFile& GetPlatformFile();
	void SetPlatformFile(IPlatformFile& NewTopmostPlatformFile);
	IPlatformFile* FindPlatformFile(const TCHAR* Name);
	void TickActivePlatformFile();
	void InitializeNewAsyncIO();
	static FPlatformFileManager& Get();
	void RemovePlatformFile(IPlatformFile* PlatformFileToRemove);
};
