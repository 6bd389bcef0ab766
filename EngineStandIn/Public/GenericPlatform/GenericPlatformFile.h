#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Containers/UnrealString.h"
#include "Misc/DateTime.h"
#include "Containers/Array.h"
#include "Templates/Function.h"

class FArchive;
class IAsyncReadFileHandle;
class IMappedFileHandle;

class CORE_API IFileHandle
{
public:
	virtual ~IFileHandle() {}
	virtual int64 Tell() = 0;
	virtual bool Seek(int64 NewPosition) = 0;
	virtual bool SeekFromEnd(int64 NewPositionRelativeToEnd = 0) = 0;
	virtual bool Read(uint8* Destination, int64 BytesToRead) = 0;
	virtual bool Write(const uint8* Source, int64 BytesToWrite) = 0;
	virtual bool Flush(const bool bFullFlush = false) = 0;
	virtual bool Truncate(int64 NewSize) = 0;
	virtual int64 Size();
};

struct FFileStatData
{
	FFileStatData()
		: CreationTime(FDateTime::MinValue()), AccessTime(FDateTime::MinValue()), ModificationTime(FDateTime::MinValue()), FileSize(-1), bIsDirectory(false), bIsReadOnly(false), bIsValid(false)
	{
	}
	FFileStatData(FDateTime InCreationTime, FDateTime InAccessTime, FDateTime InModificationTime, const int64 InFileSize, const bool InIsDirectory, const bool InIsReadOnly)
		: CreationTime(InCreationTime), AccessTime(InAccessTime), ModificationTime(InModificationTime), FileSize(InFileSize), bIsDirectory(InIsDirectory), bIsReadOnly(InIsReadOnly), bIsValid(true)
	{
	}

	FDateTime CreationTime;
	FDateTime AccessTime;
	FDateTime ModificationTime;
	int64 FileSize;
	bool bIsDirectory : 1;
	bool bIsReadOnly : 1;
	bool bIsValid : 1;
};

enum EAsyncIOPriorityAndFlags
{
	AIOP_PRIORITY_MASK = 0x000000ff,

	AIOP_FLAG_PRECACHE = 0x00000100,
	AIOP_FLAG_DONTCACHE = 0x00000200,

	AIOP_MIN = 0,
	AIOP_Low,
	AIOP_BelowNormal,
	AIOP_Normal,
	AIOP_High,
	AIOP_CriticalPath,
	AIOP_MAX = AIOP_CriticalPath,
	AIOP_NUM,

	AIOP_Precache = AIOP_MIN | AIOP_FLAG_PRECACHE,
};

enum class EPlatformFileRead : uint8
{
	None = 0x0,
	AllowWrite = 0x01
};

enum class EPlatformFileWrite : uint8
{
	None = 0x0,
	AllowRead = 0x01
};

enum class EDirectoryVisitorFlags : uint8
{
	None = 0x0,
	ThreadSafe = 0x01
};

// One layer of the platform-file chain. The pure operations are each layer's own; every other one has
// the engine's default, built on the pure ones of the same layer.
class CORE_API IPlatformFile
{
public:
	// The layer that reaches the disk; never wrapped.
	static IPlatformFile& GetPlatformPhysical();
	static const TCHAR* GetPhysicalTypeName();
	virtual ~IPlatformFile() {}

	virtual void SetSandboxEnabled(bool bInEnabled) {}
	virtual bool IsSandboxEnabled() const { return false; }
	virtual bool ShouldBeUsed(IPlatformFile* Inner, const TCHAR* CmdLine) const { return false; }
	virtual bool Initialize(IPlatformFile* Inner, const TCHAR* CmdLine) = 0;
	virtual void InitializeAfterSetActive() {}
	virtual void MakeUniquePakFilesForTheseFiles(const TArray<TArray<FString>>& InFiles) {}
	virtual void InitializeNewAsyncIO() {}
	virtual void AddLocalDirectories(TArray<FString>& LocalDirectories)
	{
		if (GetLowerLevel())
		{
			GetLowerLevel()->AddLocalDirectories(LocalDirectories);
		}
	}
	virtual void BypassSecurity(bool bInBypass)
	{
		if (GetLowerLevel() != nullptr)
		{
			GetLowerLevel()->BypassSecurity(bInBypass);
		}
	}
	virtual void Tick() {}

	virtual IPlatformFile* GetLowerLevel() = 0;
	virtual void SetLowerLevel(IPlatformFile* NewLowerLevel) = 0;
	virtual const TCHAR* GetName() const = 0;

	virtual bool FileExists(const TCHAR* Filename) = 0;
	virtual int64 FileSize(const TCHAR* Filename) = 0;
	virtual bool DeleteFile(const TCHAR* Filename) = 0;
	virtual bool IsReadOnly(const TCHAR* Filename) = 0;
	virtual bool MoveFile(const TCHAR* To, const TCHAR* From) = 0;
	virtual bool SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue) = 0;
	virtual FDateTime GetTimeStamp(const TCHAR* Filename) = 0;
	virtual void SetTimeStamp(const TCHAR* Filename, FDateTime DateTime) = 0;
	virtual FDateTime GetAccessTimeStamp(const TCHAR* Filename) = 0;
	virtual FString GetFilenameOnDisk(const TCHAR* Filename) = 0;

	virtual IFileHandle* OpenRead(const TCHAR* Filename, bool bAllowWrite = false) = 0;
	virtual IFileHandle* OpenReadNoBuffering(const TCHAR* Filename, bool bAllowWrite = false)
	{
		return OpenRead(Filename, bAllowWrite);
	}
	virtual IFileHandle* OpenWrite(const TCHAR* Filename, bool bAppend = false, bool bAllowRead = false) = 0;

	virtual bool DirectoryExists(const TCHAR* Directory) = 0;
	virtual bool CreateDirectory(const TCHAR* Directory) = 0;
	virtual bool DeleteDirectory(const TCHAR* Directory) = 0;
	virtual FFileStatData GetStatData(const TCHAR* FilenameOrDirectory) = 0;

	class FDirectoryVisitor
	{
	public:
		FDirectoryVisitor(EDirectoryVisitorFlags InDirectoryVisitorFlags = EDirectoryVisitorFlags::None)
			: DirectoryVisitorFlags(InDirectoryVisitorFlags) {}
		virtual ~FDirectoryVisitor() {}
		// Returns true to go on.
		virtual bool Visit(const TCHAR* FilenameOrDirectory, bool bIsDirectory) = 0;
		bool IsThreadSafe() const { return DirectoryVisitorFlags == EDirectoryVisitorFlags::ThreadSafe; }
		EDirectoryVisitorFlags DirectoryVisitorFlags;
	};

	typedef TFunctionRef<bool(const TCHAR*, bool)> FDirectoryVisitorFunc;

	class FDirectoryStatVisitor
	{
	public:
		virtual ~FDirectoryStatVisitor() {}
		virtual bool Visit(const TCHAR* FilenameOrDirectory, const FFileStatData& StatData) = 0;
	};

	typedef TFunctionRef<bool(const TCHAR*, const FFileStatData&)> FDirectoryStatVisitorFunc;

	virtual bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitor& Visitor) = 0;
	virtual bool IterateDirectoryStat(const TCHAR* Directory, FDirectoryStatVisitor& Visitor) = 0;

	virtual IAsyncReadFileHandle* OpenAsyncRead(const TCHAR* Filename);
	virtual void SetAsyncMinimumPriority(EAsyncIOPriorityAndFlags MinPriority) {}
	virtual IMappedFileHandle* OpenMapped(const TCHAR* Filename) { return nullptr; }

	// The lower layer answers when there is one; only the bottom layer asks its own GetTimeStamp.
	virtual void GetTimeStampPair(const TCHAR* PathA, const TCHAR* PathB, FDateTime& OutTimeStampA, FDateTime& OutTimeStampB);
	virtual FDateTime GetTimeStampLocal(const TCHAR* Filename);

	virtual bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitorFunc Visitor);
	virtual bool IterateDirectoryStat(const TCHAR* Directory, FDirectoryStatVisitorFunc Visitor);
	virtual bool IterateDirectoryRecursively(const TCHAR* Directory, FDirectoryVisitor& Visitor);
	virtual bool IterateDirectoryStatRecursively(const TCHAR* Directory, FDirectoryStatVisitor& Visitor);
	virtual bool IterateDirectoryRecursively(const TCHAR* Directory, FDirectoryVisitorFunc Visitor);
	virtual bool IterateDirectoryStatRecursively(const TCHAR* Directory, FDirectoryStatVisitorFunc Visitor);

	// FileExtension is matched case-sensitively at the end of the name; null or empty takes every file.
	virtual void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension);
	virtual void FindFilesRecursively(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension);
	virtual bool DeleteDirectoryRecursively(const TCHAR* Directory);
	virtual bool CreateDirectoryTree(const TCHAR* Directory);

	virtual bool CopyFile(const TCHAR* To, const TCHAR* From, EPlatformFileRead ReadFlags = EPlatformFileRead::None, EPlatformFileWrite WriteFlags = EPlatformFileWrite::None);
	virtual bool CopyDirectoryTree(const TCHAR* DestinationDirectory, const TCHAR* Source, bool bOverwriteAllExisting);

	virtual FString ConvertToAbsolutePathForExternalAppForRead(const TCHAR* Filename);
	virtual FString ConvertToAbsolutePathForExternalAppForWrite(const TCHAR* Filename);

	class IFileServerMessageHandler
	{
	public:
		virtual ~IFileServerMessageHandler() {}
		virtual void FillPayload(FArchive& Payload) = 0;
		virtual void ProcessResponse(FArchive& Response) = 0;
	};

	virtual bool SendMessageToServer(const TCHAR* Message, IFileServerMessageHandler* Handler) { return false; }
	virtual bool DoesCreatePublicFiles() { return false; }
	virtual void SetCreatePublicFiles(bool bCreatePublicFiles) {}
};

class CORE_API IPhysicalPlatformFile : public IPlatformFile
{
public:
	virtual bool ShouldBeUsed(IPlatformFile* Inner, const TCHAR* CmdLine) const override { return true; }
	// The physical layer wraps nothing.
	virtual bool Initialize(IPlatformFile* Inner, const TCHAR* CmdLine) override;
	virtual IPlatformFile* GetLowerLevel() override { return nullptr; }
	virtual void SetLowerLevel(IPlatformFile* NewLowerLevel) override { check(false); }
	virtual const TCHAR* GetName() const override { return IPlatformFile::GetPhysicalTypeName(); }
};
