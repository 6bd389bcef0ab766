#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/DateTime.h"
#include "GenericPlatform/GenericPlatformFile.h"

class FArchive;

enum EFileWrite
{
	FILEWRITE_None = 0x00,
	FILEWRITE_NoFail = 0x01,
	FILEWRITE_NoReplaceExisting = 0x02,
	FILEWRITE_EvenIfReadOnly = 0x04,
	FILEWRITE_Append = 0x08,
	FILEWRITE_AllowRead = 0x10,
	FILEWRITE_Silent = 0x20,
};

class CORE_API IFileManager
{
protected:
	IFileManager() {}

public:
	// Every operation goes through the top of the platform-file chain.
	static IFileManager& Get();

	virtual bool FileExists(const TCHAR* Filename) = 0;
	virtual bool DirectoryExists(const TCHAR* InDirectory) = 0;
	virtual bool Delete(const TCHAR* Filename, bool RequireExists = 0, bool EvenReadOnly = 0, bool Quiet = 0) = 0;
	virtual bool MakeDirectory(const TCHAR* Path, bool Tree = 0) = 0;
	virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool Files, bool Directories, bool bClearFileNames = true) = 0;
	virtual FArchive* CreateFileWriter(const TCHAR* Filename, uint32 WriteFlags = 0) = 0;
};
