#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include <algorithm>
#include <iterator>
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
		Files[*Path] = FEntry{Bytes, Ticks, bReadOnly};
	}
	void AddDirectory(const FString& Path) { Directories.insert(*Path); }
	const FEntry* Find(const FString& Path) const
	{
		const auto It = Files.find(*Path);
		return It == Files.end() ? nullptr : &It->second;
	}

	IPlatformFile* Below = nullptr;
	int TickCount = 0;
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

	virtual bool FileExists(const TCHAR* Filename) override { return Files.count(Filename) != 0; }
	virtual int64 FileSize(const TCHAR* Filename) override
	{
		const FEntry* Entry = Find(Filename);
		return Entry ? (int64)Entry->Bytes.size() : -1;
	}
	virtual bool DeleteFile(const TCHAR* Filename) override { return Files.erase(Filename) != 0; }
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
		const auto It = Files.find(Filename);
		return It == Files.end() ? nullptr : new FMemoryHandle(It->second.Bytes, 0);
	}
	virtual IFileHandle* OpenWrite(const TCHAR* Filename, bool bAppend, bool bAllowRead) override
	{
		WriteRequests.push_back({Filename, bAppend, bAllowRead});
		FEntry& Entry = Files[Filename];
		if (!bAppend)
		{
			Entry.Bytes.clear();
		}
		return new FMemoryHandle(Entry.Bytes, (int64)Entry.Bytes.size());
	}

	virtual bool DirectoryExists(const TCHAR* Directory) override { return Directories.count(Directory) != 0; }
	virtual bool CreateDirectory(const TCHAR* Directory) override
	{
		Directories.insert(Directory);
		return true;
	}
	virtual bool DeleteDirectory(const TCHAR* Directory) override { return Directories.erase(Directory) != 0; }
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
		// Reads and writes go straight to the entry's bytes, which the map keeps in place.
		FMemoryHandle(std::string& InBytes, int64 InPosition)
			: Bytes(InBytes), Position(InPosition) {}
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
		std::string& Bytes;
		int64 Position;
	};

	std::vector<std::wstring> ChildrenOf(const TCHAR* Directory) const
	{
		const std::wstring Prefix = std::wstring(Directory) + L"/";
		const auto IsChild = [&Prefix](const std::wstring& Path) {
			return Path.compare(0, Prefix.size(), Prefix) == 0 && Path.find(L'/', Prefix.size()) == std::wstring::npos;
		};
		std::set<std::wstring> Children;
		for (const auto& File : Files)
		{
			if (IsChild(File.first))
			{
				Children.insert(File.first);
			}
		}
		std::copy_if(Directories.begin(), Directories.end(), std::inserter(Children, Children.end()), IsChild);
		return std::vector<std::wstring>(Children.begin(), Children.end());
	}

	std::map<std::wstring, FEntry> Files;
	std::set<std::wstring> Directories;
};
