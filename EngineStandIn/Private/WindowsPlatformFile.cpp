#include "GenericPlatform/GenericPlatformFile.h"
#include "Misc/Paths.h"
#include "StandIn/World.h"
#include "StandInWorld.h"
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <dirent.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>
#include <vector>

namespace
{
	const int64 TicksPerSecond = 10000000;
	const int64 UnixEpochTicks = 621355968000000000LL;

	FDateTime ToDateTime(const struct timespec& Time)
	{
		return FDateTime(UnixEpochTicks + (int64)Time.tv_sec * TicksPerSecond + (int64)Time.tv_nsec / 100);
	}

	bool StatHost(const TCHAR* Path, struct stat& Info)
	{
		return stat(StandInWorld::ToHost(Path).c_str(), &Info) == 0;
	}

	class FStandInFileHandle : public IFileHandle
	{
	public:
		explicit FStandInFileHandle(FILE* InFile)
			: File(InFile) {}
		virtual ~FStandInFileHandle() override { std::fclose(File); }
		virtual int64 Tell() override { return (int64)std::ftell(File); }
		virtual bool Seek(int64 NewPosition) override { return std::fseek(File, (long)NewPosition, SEEK_SET) == 0; }
		virtual bool SeekFromEnd(int64 NewPositionRelativeToEnd) override { return std::fseek(File, (long)NewPositionRelativeToEnd, SEEK_END) == 0; }
		virtual bool Read(uint8* Destination, int64 BytesToRead) override { return std::fread(Destination, 1, (size_t)BytesToRead, File) == (size_t)BytesToRead; }
		virtual bool Write(const uint8* Source, int64 BytesToWrite) override { return std::fwrite(Source, 1, (size_t)BytesToWrite, File) == (size_t)BytesToWrite; }
		virtual bool Flush(const bool bFullFlush) override { return std::fflush(File) == 0; }
		virtual bool Truncate(int64 NewSize) override { return std::fflush(File) == 0 && ftruncate(fileno(File), (off_t)NewSize) == 0; }

	private:
		FILE* File;
	};

	// The disk of the Windows world: every path is mapped into the sandbox, and a directory lists in
	// case-insensitive name order, as NTFS returns it. Directory links count as directories.
	class FWindowsPlatformFile : public IPhysicalPlatformFile
	{
	public:
		using IPlatformFile::IterateDirectory;
		using IPlatformFile::IterateDirectoryStat;

		virtual bool FileExists(const TCHAR* Filename) override
		{
			struct stat Info;
			return StatHost(Filename, Info) && S_ISREG(Info.st_mode);
		}
		virtual int64 FileSize(const TCHAR* Filename) override
		{
			struct stat Info;
			return StatHost(Filename, Info) && S_ISREG(Info.st_mode) ? (int64)Info.st_size : -1;
		}
		virtual bool DeleteFile(const TCHAR* Filename) override
		{
			return FileExists(Filename) && !IsReadOnly(Filename) && unlink(StandInWorld::ToHost(Filename).c_str()) == 0;
		}
		virtual bool IsReadOnly(const TCHAR* Filename) override
		{
			struct stat Info;
			return StatHost(Filename, Info) && (Info.st_mode & S_IWUSR) == 0;
		}
		virtual bool MoveFile(const TCHAR* To, const TCHAR* From) override
		{
			return std::rename(StandInWorld::ToHost(From).c_str(), StandInWorld::ToHost(To).c_str()) == 0;
		}
		virtual bool SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue) override
		{
			struct stat Info;
			if (!StatHost(Filename, Info))
			{
				return false;
			}
			const mode_t Mode = bNewReadOnlyValue ? (Info.st_mode & ~(mode_t)(S_IWUSR | S_IWGRP | S_IWOTH)) : (Info.st_mode | S_IWUSR);
			return chmod(StandInWorld::ToHost(Filename).c_str(), Mode) == 0;
		}
		virtual FDateTime GetTimeStamp(const TCHAR* Filename) override
		{
			struct stat Info;
			return StatHost(Filename, Info) ? ToDateTime(Info.st_mtim) : FDateTime::MinValue();
		}
		virtual void SetTimeStamp(const TCHAR* Filename, FDateTime DateTime) override
		{
			const int64 SinceEpoch = DateTime.GetTicks() - UnixEpochTicks;
			struct timeval Times[2];
			Times[0].tv_sec = Times[1].tv_sec = (time_t)(SinceEpoch / TicksPerSecond);
			Times[0].tv_usec = Times[1].tv_usec = (suseconds_t)((SinceEpoch % TicksPerSecond) / 10);
			utimes(StandInWorld::ToHost(Filename).c_str(), Times);
		}
		virtual FDateTime GetAccessTimeStamp(const TCHAR* Filename) override
		{
			struct stat Info;
			return StatHost(Filename, Info) ? ToDateTime(Info.st_atim) : FDateTime::MinValue();
		}
		virtual FString GetFilenameOnDisk(const TCHAR* Filename) override { return FString(Filename); }

		virtual IFileHandle* OpenRead(const TCHAR* Filename, bool bAllowWrite) override
		{
			if (!FileExists(Filename))
			{
				return nullptr;
			}
			FILE* File = std::fopen(StandInWorld::ToHost(Filename).c_str(), "rb");
			return File ? new FStandInFileHandle(File) : nullptr;
		}
		virtual IFileHandle* OpenWrite(const TCHAR* Filename, bool bAppend, bool bAllowRead) override
		{
			FILE* File = std::fopen(StandInWorld::ToHost(Filename).c_str(), bAppend ? (bAllowRead ? "a+b" : "ab") : (bAllowRead ? "w+b" : "wb"));
			return File ? new FStandInFileHandle(File) : nullptr;
		}

		virtual bool DirectoryExists(const TCHAR* Directory) override
		{
			struct stat Info;
			return StatHost(Directory, Info) && S_ISDIR(Info.st_mode);
		}
		virtual bool CreateDirectory(const TCHAR* Directory) override
		{
			return mkdir(StandInWorld::ToHost(Directory).c_str(), 0777) == 0 || DirectoryExists(Directory);
		}
		virtual bool DeleteDirectory(const TCHAR* Directory) override
		{
			return rmdir(StandInWorld::ToHost(Directory).c_str()) == 0 || !DirectoryExists(Directory);
		}
		virtual FFileStatData GetStatData(const TCHAR* FilenameOrDirectory) override
		{
			struct stat Info;
			if (!StatHost(FilenameOrDirectory, Info))
			{
				return FFileStatData();
			}
			const bool bIsDirectory = S_ISDIR(Info.st_mode);
			return FFileStatData(ToDateTime(Info.st_ctim), ToDateTime(Info.st_atim), ToDateTime(Info.st_mtim), bIsDirectory ? -1 : (int64)Info.st_size, bIsDirectory, (Info.st_mode & S_IWUSR) == 0);
		}

		virtual bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitor& Visitor) override
		{
			return Walk(Directory, [&Visitor](const TCHAR* Path, bool bIsDirectory) {
				return Visitor.Visit(Path, bIsDirectory);
			});
		}
		virtual bool IterateDirectoryStat(const TCHAR* Directory, FDirectoryStatVisitor& Visitor) override
		{
			return Walk(Directory, [this, &Visitor](const TCHAR* Path, bool bIsDirectory) {
				return Visitor.Visit(Path, GetStatData(Path));
			});
		}

	private:
		// A name lives in Names at Offset; its case-folded form, which is what orders it, at the same place
		// in Keys. Two pools instead of two strings an entry: a folder of a cooked tree has hundreds of names.
		struct FEntry
		{
			size_t Offset;
			size_t Length;
			unsigned char Type;
		};

		// The name as StandIn::FromUtf8 converts it; a 7-bit name, the usual one, goes straight in.
		static void AppendName(std::wstring& Names, const char* Name)
		{
			const size_t Length = std::strlen(Name);
			unsigned AllBits = 0;
			for (size_t Index = 0; Index < Length; ++Index)
			{
				AllBits |= (unsigned char)Name[Index];
			}
			if (AllBits >= 0x80)
			{
				const FString Converted = StandIn::FromUtf8(Name);
				Names.append(*Converted, (size_t)Converted.Len());
				return;
			}
			const size_t Start = Names.size();
			Names.resize(Start + Length);
			for (size_t Index = 0; Index < Length; ++Index)
			{
				Names[Start + Index] = (TCHAR)(unsigned char)Name[Index];
			}
		}

		template <typename FunctorType>
		bool Walk(const TCHAR* Directory, FunctorType&& VisitEntry)
		{
			const std::string HostDirectory = StandInWorld::ToHost(Directory);
			// The folder is read with getdents64 straight into a buffer on the stack, as readdir does but
			// without the stat and the heap buffer opendir takes for every folder of a large walk.
			const int Handle = open(HostDirectory.c_str(), O_RDONLY | O_NONBLOCK | O_DIRECTORY | O_CLOEXEC);
			if (Handle < 0)
			{
				return false;
			}
			// The entry's type comes with the name, as FindFirstFile gives it on Windows; only links need a
			// look at what they point to, since directory links are followed.
			std::vector<FEntry> Entries;
			std::wstring Names;
			alignas(8) char Buffer[32768];
			long Read;
			while ((Read = syscall(SYS_getdents64, Handle, Buffer, sizeof(Buffer))) > 0)
			{
				for (long Offset = 0; Offset < Read;)
				{
					const dirent64* Entry = (const dirent64*)(Buffer + Offset);
					Offset += Entry->d_reclen;
					const char* Name = Entry->d_name;
					// readdir passes over entries without an inode, those of files being deleted.
					if (Entry->d_ino != 0 && std::strcmp(Name, ".") != 0 && std::strcmp(Name, "..") != 0)
					{
						Entries.push_back(FEntry{Names.size(), 0, Entry->d_type});
						AppendName(Names, Name);
						Entries.back().Length = Names.size() - Entries.back().Offset;
					}
				}
			}
			close(Handle);
			// The same order as comparing the names as FStrings: letters folded, then the shorter first.
			std::wstring Keys(Names);
			for (TCHAR& Char : Keys)
			{
				if (Char >= L'a' && Char <= L'z')
				{
					Char = (TCHAR)(Char - L'a' + L'A');
				}
			}
			std::sort(Entries.begin(), Entries.end(), [&Keys](const FEntry& A, const FEntry& B) {
				const int Order = std::wmemcmp(Keys.data() + A.Offset, Keys.data() + B.Offset, std::min(A.Length, B.Length));
				return Order != 0 ? Order < 0 : A.Length < B.Length;
			});
			// Every visited path is the folder joined with a name as FString's operator/ joins them, built in
			// one buffer that keeps the folder and only takes each name in turn.
			std::wstring Path(Directory);
			if (!Path.empty() && Path.back() != L'/' && Path.back() != L'\\')
			{
				Path += L'/';
			}
			const size_t FolderLength = Path.size();
			for (const FEntry& Entry : Entries)
			{
				Path.resize(FolderLength);
				Path.append(Names, Entry.Offset, Entry.Length);
				bool bIsDirectory = Entry.Type == DT_DIR;
				if (Entry.Type == DT_LNK || Entry.Type == DT_UNKNOWN)
				{
					// Through the world's own path lookup, so that a link leading out of it is not there.
					struct stat Info;
					if (!StatHost(Path.c_str(), Info))
					{
						continue;
					}
					bIsDirectory = S_ISDIR(Info.st_mode);
				}
				if (!VisitEntry(Path.c_str(), bIsDirectory))
				{
					return false;
				}
			}
			return true;
		}
	};
}

IPlatformFile& IPlatformFile::GetPlatformPhysical()
{
	static FWindowsPlatformFile Physical;
	return Physical;
}
