#pragma once

#include "CoreTypes.h"
#include "Containers/StringView.h"
#include "HAL/FileManager.h"

struct CORE_API FFileHelper
{
	enum class EEncodingOptions
	{
		AutoDetect,
		ForceAnsi,
		ForceUnicode,
		ForceUTF8,
		ForceUTF8WithoutBOM
	};

	enum class EHashOptions
	{
		None = 0,
		EnableVerify = 1 << 0,
		ErrorMissingHash = 1 << 1
	};

	// A byte-order mark says UTF-16 or UTF-8; without one the bytes are taken as UTF-8.
	static bool LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags = EHashOptions::None, uint32 ReadFlags = 0);
	static bool SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = &IFileManager::Get(), uint32 WriteFlags = 0);
};
