// Copyright UGCEditor contributors. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericPlatformFile.h"

/**
 * A layer at the top of the platform-file chain that puts loose files on the physical disk in front of the
 * layer below it: queries ask the disk first, reads go where the file is, and directory listings come from
 * the layer below only.
 */
class FSuperPlatformFile : public IPlatformFile
{
public:
	FSuperPlatformFile();

	//~ Begin IPlatformFile Interface
	virtual bool Initialize(IPlatformFile* Inner, const TCHAR* CmdLine) override;
	virtual void SetSandboxEnabled(bool bInEnabled) override;
	virtual bool IsSandboxEnabled() const override;
	virtual IPlatformFile* GetLowerLevel() override;
	virtual void SetLowerLevel(IPlatformFile* NewLowerLevel) override;
	virtual const TCHAR* GetName() const override;
	virtual bool FileExists(const TCHAR* Filename) override;
	virtual int64 FileSize(const TCHAR* Filename) override;
	virtual bool DeleteFile(const TCHAR* Filename) override;
	virtual bool IsReadOnly(const TCHAR* Filename) override;
	virtual bool MoveFile(const TCHAR* To, const TCHAR* From) override;
	virtual bool SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue) override;
	virtual FDateTime GetTimeStamp(const TCHAR* Filename) override;
	virtual void SetTimeStamp(const TCHAR* Filename, FDateTime DateTime) override;
	virtual FDateTime GetAccessTimeStamp(const TCHAR* Filename) override;
	virtual FString GetFilenameOnDisk(const TCHAR* Filename) override;
	virtual IFileHandle* OpenRead(const TCHAR* Filename, bool bAllowWrite = false) override;
	virtual IFileHandle* OpenReadNoBuffering(const TCHAR* Filename, bool bAllowWrite = false) override;
	virtual IFileHandle* OpenWrite(const TCHAR* Filename, bool bAppend = false, bool bAllowRead = false) override;
	virtual bool DirectoryExists(const TCHAR* Directory) override;
	virtual bool CreateDirectory(const TCHAR* Directory) override;
	virtual bool DeleteDirectory(const TCHAR* Directory) override;
	virtual FFileStatData GetStatData(const TCHAR* FilenameOrDirectory) override;
	using IPlatformFile::IterateDirectory;
	virtual bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitor& Visitor) override;
	using IPlatformFile::IterateDirectoryStat;
	virtual bool IterateDirectoryStat(const TCHAR* Directory, FDirectoryStatVisitor& Visitor) override;
	//~ End IPlatformFile Interface

private:
	/** The physical layer when the file is on disk, the inner layer otherwise. */
	IPlatformFile& LayerHoldingFile(const TCHAR* Filename);

	/** The raw disk; not owned. */
	IPlatformFile* PhysicalPlatformFile;
	/** The layer that was at the top of the chain when this one was initialised; not owned. */
	IPlatformFile* InnerPlatformFile;
};
