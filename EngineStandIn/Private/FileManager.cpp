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

		// Leaf names in one folder that match the pattern; "*" and "*.*" match every name. Each is handed
		// over as the characters of the visited path that FPaths::GetCleanFilename would keep, so that a
		// walk of a large tree does not copy every name on its way to being joined to its folder again.
		template <typename FunctorType>
		static void FindFiles(const FString& Directory, const FString& Pattern, bool Files, bool Directories, FunctorType&& TakeLeaf)
		{
			const bool bMatchAll = Pattern == TEXT("*") || Pattern == TEXT("*.*");
			GetLowLevel().IterateDirectory(*Directory, [&](const TCHAR* Path, bool bIsDirectory) {
				if (!((bIsDirectory && Directories) || (!bIsDirectory && Files)))
				{
					return true;
				}
				const auto IsSeparator = [](TCHAR Char) {
					return Char == L'/' || Char == L'\\';
				};
				size_t End = std::wcslen(Path);
				while (End > 0 && IsSeparator(Path[End - 1]))
				{
					--End;
				}
				size_t Start = End;
				while (Start > 0 && !IsSeparator(Path[Start - 1]))
				{
					--Start;
				}
				if (bMatchAll || MatchesWildcard(FString((int32)(End - Start), Path + Start), Pattern))
				{
					TakeLeaf(Path + Start, End - Start);
				}
				return true;
			});
		}

		// Directory / Leaf as FString's operator/ joins them (a leaf never starts with a separator),
		// allocated once at its final size.
		static FString JoinPath(const FString& Directory, const TCHAR* Leaf, size_t LeafLength)
		{
			thread_local std::wstring Joined;
			Joined.assign(*Directory, (size_t)Directory.Len());
			if (!Joined.empty() && Joined.back() != L'/' && Joined.back() != L'\\')
			{
				Joined += L'/';
			}
			Joined.append(Leaf, LeafLength);
			return FString((int32)Joined.size(), Joined.c_str());
		}

		static void FindFilesRecursiveInternal(TArray<FString>& FileNames, const FString& StartDirectory, const FString& Filename, bool Files, bool Directories)
		{
			FindFiles(StartDirectory, Filename, Files, Directories, [&](const TCHAR* Leaf, size_t LeafLength) {
				FileNames.Add(JoinPath(StartDirectory, Leaf, LeafLength));
			});
			TArray<FString> SubDirs;
			FindFiles(StartDirectory, TEXT("*"), false, true, [&](const TCHAR* Leaf, size_t LeafLength) {
				SubDirs.Add(JoinPath(StartDirectory, Leaf, LeafLength));
			});
			for (const FString& SubDir : SubDirs)
			{
				FindFilesRecursiveInternal(FileNames, SubDir, Filename, Files, Directories);
			}
		}
	};
}

IFileManager& IFileManager::Get()
{
	static FFileManagerGeneric Instance;
	return Instance;
}
