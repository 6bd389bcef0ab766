#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformFilemanager.h"
#include "Misc/Paths.h"
#include "Serialization/Archive.h"
#include <cwchar>
#include <string>
#include <utility>

DEFINE_LOG_CATEGORY_STATIC(LogFileManager, Log, All);

namespace
{
	// Letters match without regard to case, as FString comparison does.
	bool MatchesWildcard(const FString& Name, const FString& Pattern, int32 NameIndex = 0, int32 PatternIndex = 0)
	{
		if (PatternIndex == Pattern.Len())
		{
			return NameIndex == Name.Len();
		}
		if (Pattern[PatternIndex] == L'*')
		{
			for (int32 Skip = NameIndex; Skip <= Name.Len(); ++Skip)
			{
				if (MatchesWildcard(Name, Pattern, Skip, PatternIndex + 1))
				{
					return true;
				}
			}
			return false;
		}
		return NameIndex < Name.Len() && (Pattern[PatternIndex] == L'?' || Name.Mid(NameIndex, 1) == Pattern.Mid(PatternIndex, 1)) && MatchesWildcard(Name, Pattern, NameIndex + 1, PatternIndex + 1);
	}

	class FArchiveFileWriterGeneric : public FArchive
	{
	public:
		explicit FArchiveFileWriterGeneric(IFileHandle* InHandle)
			: Handle(InHandle) {}
		virtual ~FArchiveFileWriterGeneric() override { Close(); }
		virtual void Serialize(void* V, int64 Length) override
		{
			if (Handle && !Handle->Write((const uint8*)V, Length))
			{
				SetError();
			}
		}
		virtual bool Close() override
		{
			if (Handle)
			{
				if (!Handle->Flush())
				{
					SetError();
				}
				delete Handle;
				Handle = nullptr;
			}
			return !IsError();
		}

	private:
		IFileHandle* Handle;
	};

	class FFileManagerGeneric : public IFileManager
	{
	public:
		virtual bool FileExists(const TCHAR* Filename) override { return GetLowLevel().FileExists(Filename); }
		virtual bool DirectoryExists(const TCHAR* InDirectory) override { return GetLowLevel().DirectoryExists(InDirectory); }

		virtual bool Delete(const TCHAR* Filename, bool RequireExists, bool EvenReadOnly, bool Quiet) override
		{
			if (!GetLowLevel().FileExists(Filename))
			{
				if (RequireExists && !Quiet)
				{
					UE_LOG(LogFileManager, Warning, TEXT("Could not delete %s because it doesn't exist."), Filename);
				}
				return !RequireExists;
			}
			if (EvenReadOnly)
			{
				GetLowLevel().SetReadOnly(Filename, false);
			}
			if (!GetLowLevel().DeleteFile(Filename))
			{
				if (!Quiet)
				{
					UE_LOG(LogFileManager, Warning, TEXT("Error deleting file: %s"), Filename);
				}
				return false;
			}
			return true;
		}

		virtual bool MakeDirectory(const TCHAR* Path, bool Tree) override
		{
			return Tree ? GetLowLevel().CreateDirectoryTree(Path) : GetLowLevel().CreateDirectory(Path);
		}

		virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool Files, bool Directories, bool bClearFileNames) override
		{
			if (bClearFileNames)
			{
				FileNames.Empty();
			}
			FindFilesRecursiveInternal(FileNames, FString(StartDirectory), FString(Filename), Files, Directories);
		}

		virtual FArchive* CreateFileWriter(const TCHAR* Filename, uint32 WriteFlags) override
		{
			MakeDirectory(*ParentFolderOf(Filename), true);
			IFileHandle* Handle = GetLowLevel().OpenWrite(Filename, (WriteFlags & FILEWRITE_Append) != 0, (WriteFlags & FILEWRITE_AllowRead) != 0);
			return Handle ? new FArchiveFileWriterGeneric(Handle) : nullptr;
		}

	private:
		static IPlatformFile& GetLowLevel() { return FPlatformFileManager::Get().GetPlatformFile(); }

		static FString ParentFolderOf(const FString& Filename)
		{
			FString Normalized(Filename);
			FPaths::NormalizeFilename(Normalized);
			const int32 LastSlash = Normalized.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
			return LastSlash == INDEX_NONE ? FString() : Normalized.Left(LastSlash);
		}

		// Leaf names in one folder that match the pattern; "*" and "*.*" match every name.
		static void FindFiles(TArray<FString>& Result, const FString& Directory, const FString& Pattern, bool Files, bool Directories)
		{
			const bool bMatchAll = Pattern == TEXT("*") || Pattern == TEXT("*.*");
			GetLowLevel().IterateDirectory(*Directory, [&](const TCHAR* Path, bool bIsDirectory) {
				if (!((bIsDirectory && Directories) || (!bIsDirectory && Files)))
				{
					return true;
				}
				FString Leaf = CleanFilename(Path);
				if (bMatchAll || MatchesWildcard(Leaf, Pattern))
				{
					Result.Add(std::move(Leaf));
				}
				return true;
			});
		}

		// FPaths::GetCleanFilename, read straight from the visitor's characters: a walk of a large tree
		// would otherwise copy every path once more only to cut its name out.
		static FString CleanFilename(const TCHAR* Path)
		{
			const auto IsSeparator = [](TCHAR Char) {
				return Char == L'/' || Char == L'\\';
			};
			int32 EndPos = (int32)std::wcslen(Path);
			while (EndPos > 0 && IsSeparator(Path[EndPos - 1]))
			{
				--EndPos;
			}
			int32 StartPos = EndPos;
			while (StartPos > 0 && !IsSeparator(Path[StartPos - 1]))
			{
				--StartPos;
			}
			return FString(EndPos - StartPos, Path + StartPos);
		}

		// StartDirectory / Name, allocated once at its final size.
		static FString JoinPath(const FString& Directory, const FString& Name)
		{
			thread_local std::wstring Joined;
			Joined.assign(*Directory, (size_t)Directory.Len());
			const bool bEndsInSeparator = !Joined.empty() && (Joined.back() == L'/' || Joined.back() == L'\\');
			if (!Joined.empty() && !bEndsInSeparator && (*Name)[0] != L'/')
			{
				Joined += L'/';
			}
			Joined.append(*Name, std::wcslen(*Name));
			return FString((int32)Joined.size(), Joined.c_str());
		}

		static void FindFilesRecursiveInternal(TArray<FString>& FileNames, const FString& StartDirectory, const FString& Filename, bool Files, bool Directories)
		{
			TArray<FString> Result;
			FindFiles(Result, StartDirectory, Filename, Files, Directories);
			for (const FString& Name : Result)
			{
				FileNames.Add(JoinPath(StartDirectory, Name));
			}
			TArray<FString> SubDirs;
			FindFiles(SubDirs, StartDirectory, TEXT("*"), false, true);
			for (const FString& SubDir : SubDirs)
			{
				FindFilesRecursiveInternal(FileNames, JoinPath(StartDirectory, SubDir), Filename, Files, Directories);
			}
		}
	};
}

IFileManager& IFileManager::Get()
{
	static FFileManagerGeneric Instance;
	return Instance;
}
