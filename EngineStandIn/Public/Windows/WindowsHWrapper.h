#pragma once

// The few Win32 declarations the module uses; calls are recorded by the stand-in.
#include "HAL/Platform.h"

typedef int BOOL;
typedef unsigned long DWORD;
typedef const wchar_t* LPCWSTR;

#define FILE_ATTRIBUTE_READONLY 0x00000001
#define FILE_ATTRIBUTE_HIDDEN 0x00000002
#define FILE_ATTRIBUTE_DIRECTORY 0x00000010
#define FILE_ATTRIBUTE_NORMAL 0x00000080

BOOL SetFileAttributesW(LPCWSTR lpFileName, DWORD dwFileAttributes);
