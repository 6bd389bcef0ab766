#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include <map>
#include <set>
#include <string>
#include <vector>

// A layer below the one under test that holds files the disk does not, as a pak layer would: in memory,
// with times and read-only flags of its own, and a note of what it was asked to delete or write.
class FLowerLayerDouble : public IPlatformFile
{
public:
	struct FEntry
	{
		std::string Bytes;
		int64 Ticks = 0;
		bool bReadOnly = false;
	};

	void AddFile(const FString& Path, const std::string& Bytes, int64 Ticks = 0, bool bReadOnly = false)
	{
		Files[Key(*Path)] = FEntry{Bytes, Ticks, bReadOnly};
	}
	void AddDirectory(const FString& Path) { Directories.insert(Key(*Path)); }
	const FEntry* Find(const FString& Path) const
	{
		const auto It = Files.find(Key(*Path));
		return It == Files.end() ? nullptr : &It->second;
	}

	IPlatformFile* Below = nullptr;
	int TickCount = 0;
	std::vector<std::wstring> DeletedDirectoryRequests;
	struct FWriteRequest
	{
		std::wstring Path;
		bool bAppend;
		bool bAllowRead;
	};
	std::vector<FWriteRequest> WriteRequests;

	virtual bool Initialize(IPlatformFile* Inner, const TCHAR* CmdLine) override { return true; }
	virtual IPlatformFile* GetLowerLevel() override { return Below; }
	virtual void SetLowerLevel(IPlatformFile* NewLowerLevel) override { Below = NewLowerLevel; }
	virtual void Tick() override { ++TickCount; }
	virtual const TCHAR* GetName() const override { return TEXT("LowerLayerDouble"); }

	virtual bool FileExists(const TCHAR* Filename) override { return Files.count(Key(Filename)) != 0; }
	virtual int64 FileSize(const TCHAR* Filename) override
	{
		const FEntry* Entry = Find(Filename);
		return Entry ? (int64)Entry->Bytes.size() : -1;
	}
	virtual bool DeleteFile(const TCHAR* Filename) override { return Files.erase(Key(Filename)) != 0; }
	virtual bool IsReadOnly(const TCHAR* Filename) override
	{
		const FEntry* Entry = Find(Filename);
		return Entry && Entry->bReadOnly;
	}
	virtual bool MoveFile(const TCHAR* To, const TCHAR* From) override { return false; }
	virtual bool SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue) override { return false; }
	virtual FDateTime GetTimeStamp(const TCHAR* Filename) override
	{
		const FEntry* Entry = Find(Filename);
		return Entry ? FDateTime(Entry->Ticks) : FDateTime::MinValue();
	}
	virtual void SetTimeStamp(const TCHAR* Filename, FDateTime DateTime) override {}
	// Access times are kept one tick after the modification time, so that the two can be told apart.
	virtual FDateTime GetAccessTimeStamp(const TCHAR* Filename) override
	{
		const FEntry* Entry = Find(Filename);
		return Entry ? FDateTime(Entry->Ticks + 1) : FDateTime::MinValue();
	}
	virtual FString GetFilenameOnDisk(const TCHAR* Filename) override { return FString(TEXT("lower:")) + Filename; }

	virtual IFileHandle* OpenRead(const TCHAR* Filename, bool bAllowWrite) override
	{
		const FEntry* Entry = Find(Filename);
		return Entry ? new FMemoryHandle(nullptr, Entry->Bytes) : nullptr;
	}
	virtual IFileHandle* OpenWrite(const TCHAR* Filename, bool bAppend, bool bAllowRead) override
	{
		WriteRequests.push_back({Key(Filename), bAppend, bAllowRead});
		FEntry& Entry = Files[Key(Filename)];
		if (!bAppend)
		{
			Entry.Bytes.clear();
		}
		return new FMemoryHandle(&Entry.Bytes, Entry.Bytes);
	}

	virtual bool DirectoryExists(const TCHAR* Directory) override { return Directories.count(Key(Directory)) != 0; }
	virtual bool CreateDirectory(const TCHAR* Directory) override
	{
		Directories.insert(Key(Directory));
		return true;
	}
	virtual bool DeleteDirectory(const TCHAR* Directory) override
	{
		DeletedDirectoryRequests.push_back(Key(Directory));
		return Directories.erase(Key(Directory)) != 0;
	}
	virtual FFileStatData GetStatData(const TCHAR* FilenameOrDirectory) override
	{
		if (const FEntry* Entry = Find(FilenameOrDirectory))
		{
			return FFileStatData(FDateTime(Entry->Ticks), FDateTime(Entry->Ticks + 1), FDateTime(Entry->Ticks), (int64)Entry->Bytes.size(), false, Entry->bReadOnly);
		}
		return FFileStatData();
	}

	using IPlatformFile::IterateDirectory;
	using IPlatformFile::IterateDirectoryStat;
	virtual bool IterateDirectory(const TCHAR* Directory, FDirectoryVisitor& Visitor) override
	{
		for (const std::wstring& Path : ChildrenOf(Directory))
		{
			if (!Visitor.Visit(Path.c_str(), Directories.count(Path) != 0))
			{
				return false;
			}
		}
		return true;
	}
	virtual bool IterateDirectoryStat(const TCHAR* Directory, FDirectoryStatVisitor& Visitor) override
	{
		for (const std::wstring& Path : ChildrenOf(Directory))
		{
			if (!Visitor.Visit(Path.c_str(), GetStatData(Path.c_str())))
			{
				return false;
			}
		}
		return true;
	}

private:
	class FMemoryHandle : public IFileHandle
	{
	public:
		FMemoryHandle(std::string* InTarget, std::string InBytes)
			: Target(InTarget), Bytes(std::move(InBytes)), Position(InTarget ? (int64)Bytes.size() : 0) {}
		virtual ~FMemoryHandle() override
		{
			if (Target)
			{
				*Target = Bytes;
			}
		}
		virtual int64 Tell() override { return Position; }
		virtual bool Seek(int64 NewPosition) override
		{
			Position = NewPosition;
			return true;
		}
		virtual bool SeekFromEnd(int64 NewPositionRelativeToEnd) override
		{
			Position = (int64)Bytes.size() + NewPositionRelativeToEnd;
			return true;
		}
		virtual bool Read(uint8* Destination, int64 BytesToRead) override
		{
			if (Position + BytesToRead > (int64)Bytes.size())
			{
				return false;
			}
			Bytes.copy((char*)Destination, (size_t)BytesToRead, (size_t)Position);
			Position += BytesToRead;
			return true;
		}
		virtual bool Write(const uint8* Source, int64 BytesToWrite) override
		{
			Bytes.replace((size_t)Position, (size_t)BytesToWrite, (const char*)Source, (size_t)BytesToWrite);
			Position += BytesToWrite;
			return true;
		}
		virtual bool Flush(const bool bFullFlush) override { return true; }
		virtual bool Truncate(int64 NewSize) override
		{
			Bytes.resize((size_t)NewSize);
			return true;
		}

	private:
		std::string* Target;
		std::string Bytes;
		int64 Position;
	};

	static std::wstring Key(const TCHAR* Path) { return std::wstring(Path); }

	std::vector<std::wstring> ChildrenOf(const TCHAR* Directory) const
	{
		const std::wstring Prefix = std::wstring(Directory) + L"/";
		std::set<std::wstring> Children;
		for (const auto& File : Files)
		{
			if (File.first.compare(0, Prefix.size(), Prefix) == 0 && File.first.find(L'/', Prefix.size()) == std::wstring::npos)
			{
				Children.insert(File.first);
			}
		}
		for (const std::wstring& Path : Directories)
		{
			if (Path.compare(0, Prefix.size(), Prefix) == 0 && Path.find(L'/', Prefix.size()) == std::wstring::npos)
			{
				Children.insert(Path);
			}
		}
		return std::vector<std::wstring>(Children.begin(), Children.end());
	}

	std::map<std::wstring, FEntry> Files;
	std::set<std::wstring> Directories;
};
