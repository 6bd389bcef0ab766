#include "GenericPlatform/GenericPlatformFile.h"
#include "Async/AsyncFileHandle.h"
#include "Misc/Paths.h"
#include <algorithm>
#include <ctime>
#include <memory>
#include <vector>

namespace
{
	// Opens nothing until it is read, as the engine's generic handle; it keeps the layer it came from, so
	// that a read goes through that layer's OpenRead.
	class FGenericAsyncReadFileHandle : public IAsyncReadFileHandle
	{
	public:
		FGenericAsyncReadFileHandle(IPlatformFile* InLowerLevel, const TCHAR* InFilename)
			: LowerLevel(InLowerLevel), Filename(InFilename) {}

	private:
		IPlatformFile* LowerLevel;
		FString Filename;
	};

	class FFunctionVisitor : public IPlatformFile::FDirectoryVisitor
	{
	public:
		explicit FFunctionVisitor(IPlatformFile::FDirectoryVisitorFunc& InFunc)
			: Func(InFunc) {}
		virtual bool Visit(const TCHAR* FilenameOrDirectory, bool bIsDirectory) override { return Func(FilenameOrDirectory, bIsDirectory); }

	private:
		IPlatformFile::FDirectoryVisitorFunc& Func;
	};

	class FFunctionStatVisitor : public IPlatformFile::FDirectoryStatVisitor
	{
	public:
		explicit FFunctionStatVisitor(IPlatformFile::FDirectoryStatVisitorFunc& InFunc)
			: Func(InFunc) {}
		virtual bool Visit(const TCHAR* FilenameOrDirectory, const FFileStatData& StatData) override { return Func(FilenameOrDirectory, StatData); }

	private:
		IPlatformFile::FDirectoryStatVisitorFunc& Func;
	};

	class FFindFilesVisitor : public IPlatformFile::FDirectoryVisitor
	{
	public:
		FFindFilesVisitor(TArray<FString>& InFoundFiles, const TCHAR* InFileExtension)
			: IPlatformFile::FDirectoryVisitor(EDirectoryVisitorFlags::ThreadSafe), FoundFiles(InFoundFiles), FileExtension(InFileExtension ? InFileExtension : TEXT("")) {}

		virtual bool Visit(const TCHAR* FilenameOrDirectory, bool bIsDirectory) override
		{
			if (!bIsDirectory && FString(FilenameOrDirectory).EndsWith(FileExtension, ESearchCase::CaseSensitive))
			{
				FoundFiles.Add(FString(FilenameOrDirectory));
			}
			return true;
		}

	private:
		TArray<FString>& FoundFiles;
		FString FileExtension;
	};

	// FPaths::NormalizeDirectoryName: backslashes become slashes, and one trailing slash goes unless the
	// path is a root.
	FString NormalizedDirectoryName(const TCHAR* Directory)
	{
		FString Path(Directory);
		Path.ReplaceInline(TEXT("\\"), TEXT("/"), ESearchCase::CaseSensitive);
		if (Path.EndsWith(TEXT("/"), ESearchCase::CaseSensitive) && !Path.EndsWith(TEXT("//"), ESearchCase::CaseSensitive) && !Path.EndsWith(TEXT(":/"), ESearchCase::CaseSensitive))
		{
			Path = Path.Left(Path.Len() - 1);
		}
		return Path;
	}

	// Tries the whole path first, and only on failure makes the parents and tries again.
	bool CreateDirectoryTreeOf(IPlatformFile& PlatformFile, const FString& Directory)
	{
		if (PlatformFile.CreateDirectory(*Directory))
		{
			return true;
		}
		int32 SeparatorIndex = INDEX_NONE;
		for (int32 Index = Directory.Len() - 1; Index >= 0; --Index)
		{
			if (Directory[Index] == L'/')
			{
				SeparatorIndex = Index;
				break;
			}
		}
		if (SeparatorIndex > 0)
		{
			if (!CreateDirectoryTreeOf(PlatformFile, Directory.Left(SeparatorIndex)))
			{
				return false;
			}
			if (PlatformFile.CreateDirectory(*Directory))
			{
				return true;
			}
		}
		return PlatformFile.DirectoryExists(*Directory);
	}

	int64 LocalTimeOffsetTicks()
	{
		const std::time_t Now = std::time(nullptr);
		std::tm Local;
		localtime_r(&Now, &Local);
		return (int64)Local.tm_gmtoff * 10000000;
	}
}

int64 IFileHandle::Size()
{
	const int64 Current = Tell();
	SeekFromEnd();
	const int64 Result = Tell();
	Seek(Current);
	return Result;
}

const TCHAR* IPlatformFile::GetPhysicalTypeName()
{
	return TEXT("PhysicalFile");
}

IAsyncReadFileHandle* IPlatformFile::OpenAsyncRead(const TCHAR* Filename)
{
	return new FGenericAsyncReadFileHandle(this, Filename);
}

void IPlatformFile::GetTimeStampPair(const TCHAR* PathA, const TCHAR* PathB, FDateTime& OutTimeStampA, FDateTime& OutTimeStampB)
{
	if (GetLowerLevel())
	{
		GetLowerLevel()->GetTimeStampPair(PathA, PathB, OutTimeStampA, OutTimeStampB);
	}
	else
	{
		OutTimeStampA = GetTimeStamp(PathA);
		OutTimeStampB = GetTimeStamp(PathB);
	}
}

FDateTime IPlatformFile::GetTimeStampLocal(const TCHAR* Filename)
{
	return FDateTime(GetTimeStamp(Filename).GetTicks() + LocalTimeOffsetTicks());
}

bool IPlatformFile::IterateDirectory(const TCHAR* Directory, FDirectoryVisitorFunc Visitor)
{
	FFunctionVisitor FunctionVisitor(Visitor);
	return IterateDirectory(Directory, FunctionVisitor);
}

bool IPlatformFile::IterateDirectoryStat(const TCHAR* Directory, FDirectoryStatVisitorFunc Visitor)
{
	FFunctionStatVisitor FunctionVisitor(Visitor);
	return IterateDirectoryStat(Directory, FunctionVisitor);
}

// Level by level: every entry of a folder, then the folders found at that level, in the order found.
bool IPlatformFile::IterateDirectoryRecursively(const TCHAR* Directory, FDirectoryVisitor& Visitor)
{
	class FRecurse : public FDirectoryVisitor
	{
	public:
		FRecurse(FDirectoryVisitor& InVisitor, std::vector<FString>& InDirectories)
			: FDirectoryVisitor(InVisitor.DirectoryVisitorFlags), Inner(InVisitor), Directories(InDirectories) {}
		virtual bool Visit(const TCHAR* FilenameOrDirectory, bool bIsDirectory) override
		{
			const bool bResult = Inner.Visit(FilenameOrDirectory, bIsDirectory);
			if (bResult && bIsDirectory)
			{
				Directories.push_back(FString(FilenameOrDirectory));
			}
			return bResult;
		}

	private:
		FDirectoryVisitor& Inner;
		std::vector<FString>& Directories;
	};

	std::vector<FString> DirectoriesToVisitNext{FString(Directory)};
	FRecurse Recurse(Visitor, DirectoriesToVisitNext);
	bool bResult = true;
	while (bResult && !DirectoriesToVisitNext.empty())
	{
		const std::vector<FString> DirectoriesToVisit = std::move(DirectoriesToVisitNext);
		DirectoriesToVisitNext.clear();
		for (const FString& Next : DirectoriesToVisit)
		{
			if (bResult && !IterateDirectory(*Next, Recurse))
			{
				bResult = false;
			}
		}
	}
	return bResult;
}

// Depth first: a folder's entries are visited as the folder is reached.
bool IPlatformFile::IterateDirectoryStatRecursively(const TCHAR* Directory, FDirectoryStatVisitor& Visitor)
{
	class FStatRecurse : public FDirectoryStatVisitor
	{
	public:
		FStatRecurse(IPlatformFile& InPlatformFile, FDirectoryStatVisitor& InVisitor)
			: PlatformFile(InPlatformFile), Inner(InVisitor) {}
		virtual bool Visit(const TCHAR* FilenameOrDirectory, const FFileStatData& StatData) override
		{
			bool bResult = Inner.Visit(FilenameOrDirectory, StatData);
			if (bResult && StatData.bIsDirectory)
			{
				bResult = PlatformFile.IterateDirectoryStat(FilenameOrDirectory, *this);
			}
			return bResult;
		}

	private:
		IPlatformFile& PlatformFile;
		FDirectoryStatVisitor& Inner;
	};
	FStatRecurse Recurse(*this, Visitor);
	return IterateDirectoryStat(Directory, Recurse);
}

bool IPlatformFile::IterateDirectoryRecursively(const TCHAR* Directory, FDirectoryVisitorFunc Visitor)
{
	FFunctionVisitor FunctionVisitor(Visitor);
	return IterateDirectoryRecursively(Directory, FunctionVisitor);
}

bool IPlatformFile::IterateDirectoryStatRecursively(const TCHAR* Directory, FDirectoryStatVisitorFunc Visitor)
{
	FFunctionStatVisitor FunctionVisitor(Visitor);
	return IterateDirectoryStatRecursively(Directory, FunctionVisitor);
}

void IPlatformFile::FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension)
{
	FFindFilesVisitor Visitor(FoundFiles, FileExtension);
	IterateDirectory(Directory, Visitor);
}

void IPlatformFile::FindFilesRecursively(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension)
{
	FFindFilesVisitor Visitor(FoundFiles, FileExtension);
	IterateDirectoryRecursively(Directory, Visitor);
}

// Empties each folder before removing it; a file that will not go is made writable and tried once more.
bool IPlatformFile::DeleteDirectoryRecursively(const TCHAR* Directory)
{
	class FRecurse : public FDirectoryVisitor
	{
	public:
		explicit FRecurse(IPlatformFile& InPlatformFile)
			: PlatformFile(InPlatformFile) {}
		virtual bool Visit(const TCHAR* FilenameOrDirectory, bool bIsDirectory) override
		{
			if (bIsDirectory)
			{
				PlatformFile.IterateDirectory(FilenameOrDirectory, *this);
				PlatformFile.DeleteDirectory(FilenameOrDirectory);
			}
			else if (!PlatformFile.DeleteFile(FilenameOrDirectory))
			{
				PlatformFile.SetReadOnly(FilenameOrDirectory, false);
				PlatformFile.DeleteFile(FilenameOrDirectory);
			}
			return true;
		}

	private:
		IPlatformFile& PlatformFile;
	};
	FRecurse Recurse(*this);
	Recurse.Visit(Directory, true);
	return !DirectoryExists(Directory);
}

bool IPlatformFile::CreateDirectoryTree(const TCHAR* Directory)
{
	return CreateDirectoryTreeOf(*this, NormalizedDirectoryName(Directory));
}

bool IPlatformFile::CopyFile(const TCHAR* To, const TCHAR* From, EPlatformFileRead ReadFlags, EPlatformFileWrite WriteFlags)
{
	const int64 MaxBufferSize = 1024 * 1024;
	std::unique_ptr<IFileHandle> FromFile(OpenRead(From, ReadFlags == EPlatformFileRead::AllowWrite));
	if (!FromFile)
	{
		return false;
	}
	std::unique_ptr<IFileHandle> ToFile(OpenWrite(To, false, WriteFlags == EPlatformFileWrite::AllowRead));
	if (!ToFile)
	{
		return false;
	}
	int64 Size = FromFile->Size();
	if (Size < 1)
	{
		check(Size == 0);
		return true;
	}
	std::vector<uint8> Buffer((size_t)std::min(MaxBufferSize, Size));
	while (Size > 0)
	{
		const int64 ThisSize = std::min((int64)Buffer.size(), Size);
		FromFile->Read(Buffer.data(), ThisSize);
		ToFile->Write(Buffer.data(), ThisSize);
		Size -= ThisSize;
	}
	return true;
}

bool IPlatformFile::CopyDirectoryTree(const TCHAR* DestinationDirectory, const TCHAR* Source, bool bOverwriteAllExisting)
{
	check(DestinationDirectory);
	check(Source);
	const FString DestDir = NormalizedDirectoryName(DestinationDirectory);
	const FString SourceDir = NormalizedDirectoryName(Source);
	if (!DirectoryExists(*SourceDir))
	{
		return false;
	}
	if (!DirectoryExists(*DestDir) && !CreateDirectory(*DestDir))
	{
		return false;
	}

	class FCopyFilesAndDirs : public FDirectoryVisitor
	{
	public:
		FCopyFilesAndDirs(IPlatformFile& InPlatformFile, const FString& InSourceRoot, const FString& InDestRoot, bool bInOverwrite)
			: PlatformFile(InPlatformFile), SourceRoot(InSourceRoot), DestRoot(InDestRoot), bOverwrite(bInOverwrite) {}
		virtual bool Visit(const TCHAR* FilenameOrDirectory, bool bIsDirectory) override
		{
			// The engine swaps the root wherever it occurs in the name, ignoring case.
			const FString NewName = FString(FilenameOrDirectory).Replace(*SourceRoot, *DestRoot);
			if (bIsDirectory)
			{
				return PlatformFile.CreateDirectoryTree(*NewName) || PlatformFile.DirectoryExists(*NewName);
			}
			if (PlatformFile.FileExists(*NewName) && bOverwrite)
			{
				PlatformFile.DeleteFile(*NewName);
			}
			return PlatformFile.CopyFile(*NewName, FilenameOrDirectory);
		}

	private:
		IPlatformFile& PlatformFile;
		FString SourceRoot;
		FString DestRoot;
		bool bOverwrite;
	};
	FCopyFilesAndDirs CopyFilesAndDirs(*this, SourceDir, DestDir, bOverwriteAllExisting);
	return IterateDirectoryRecursively(*SourceDir, CopyFilesAndDirs);
}

FString IPlatformFile::ConvertToAbsolutePathForExternalAppForRead(const TCHAR* Filename)
{
	return FPaths::ConvertRelativePathToFull(Filename);
}

FString IPlatformFile::ConvertToAbsolutePathForExternalAppForWrite(const TCHAR* Filename)
{
	return FPaths::ConvertRelativePathToFull(Filename);
}

bool IPhysicalPlatformFile::Initialize(IPlatformFile* Inner, const TCHAR* CmdLine)
{
	check(Inner == nullptr);
	return true;
}
