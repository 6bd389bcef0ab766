#pragma once

#include "CoreTypes.h"
#include <string>

// Converts to UTF-8 for the lifetime of the converter object.
class FTCHARToUTF8
{
public:
	explicit FTCHARToUTF8(const TCHAR* Source);
	const ANSICHAR* Get() const { return Converted.c_str(); }
	int32 Length() const { return (int32)Converted.size(); }

private:
	std::string Converted;
};

class FUTF8ToTCHAR
{
public:
	FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen = -1);
	const TCHAR* Get() const { return Converted.c_str(); }
	int32 Length() const { return (int32)Converted.size(); }

private:
	std::wstring Converted;
};

#define TCHAR_TO_UTF8(str) (ANSICHAR*)FTCHARToUTF8((const TCHAR*)(str)).Get()
