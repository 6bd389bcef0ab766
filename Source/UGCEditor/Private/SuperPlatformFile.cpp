// Copyright UGCEditor contributors. All Rights Reserved.

#include "SuperPlatformFile.h"

#include "Misc/DateTime.h"

FSuperPlatformFile::FSuperPlatformFile()
	: PhysicalPlatformFile(nullptr), InnerPlatformFile(nullptr)
{
}

bool FSuperPlatformFile::Initialize(IPlatformFile* Inner, const TCHAR* CmdLine)
{
	InnerPlatformFile = Inner;
	PhysicalPlatformFile = &IPlatformFile::GetPlatformPhysical();
	return InnerPlatformFile != nullptr && PhysicalPlatformFile != nullptr;
}

void FSuperPlatformFile::SetSandboxEnabled(bool bInEnabled)
{
	PhysicalPlatformFile->SetSandboxEnabled(bInEnabled);
}

bool FSuperPlatformFile::IsSandboxEnabled() const
{
	return PhysicalPlatformFile->IsSandboxEnabled();
}

IPlatformFile* FSuperPlatformFile::GetLowerLevel()
{
	// The disk, not the inner layer: whoever takes this layer off the chain puts the physical layer back.
	return PhysicalPlatformFile;
}

void FSuperPlatformFile::SetLowerLevel(IPlatformFile* NewLowerLevel)
{
	InnerPlatformFile = NewLowerLevel;
}

const TCHAR* FSuperPlatformFile::GetName() const
{
	return TEXT("SuperPlatform");
}

bool FSuperPlatformFile::FileExists(const TCHAR* Filename)
{
	return PhysicalPlatformFile->FileExists(Filename) || InnerPlatformFile->FileExists(Filename);
}

int64 FSuperPlatformFile::FileSize(const TCHAR* Filename)
{
	const int64 SizeOnDisk = PhysicalPlatformFile->FileSize(Filename);
	return SizeOnDisk != -1 ? SizeOnDisk : InnerPlatformFile->FileSize(Filename);
}

bool FSuperPlatformFile::DeleteFile(const TCHAR* Filename)
{
	return PhysicalPlatformFile->DeleteFile(Filename);
}

bool FSuperPlatformFile::IsReadOnly(const TCHAR* Filename)
{
	return LayerHoldingFile(Filename).IsReadOnly(Filename);
}

bool FSuperPlatformFile::MoveFile(const TCHAR* To, const TCHAR* From)
{
	return PhysicalPlatformFile->MoveFile(To, From);
}

bool FSuperPlatformFile::SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue)
{
	return PhysicalPlatformFile->SetReadOnly(Filename, bNewReadOnlyValue);
}

FDateTime FSuperPlatformFile::GetTimeStamp(const TCHAR* Filename)
{
	const FDateTime TimeOnDisk = PhysicalPlatformFile->GetTimeStamp(Filename);
	return TimeOnDisk != FDateTime::MinValue() ? TimeOnDisk : InnerPlatformFile->GetTimeStamp(Filename);
}

void FSuperPlatformFile::SetTimeStamp(const TCHAR* Filename, FDateTime DateTime)
{
	PhysicalPlatformFile->SetTimeStamp(Filename, DateTime);
}

FDateTime FSuperPlatformFile::GetAccessTimeStamp(const TCHAR* Filename)
{
	const FDateTime TimeOnDisk = PhysicalPlatformFile->GetAccessTimeStamp(Filename);
	return TimeOnDisk != FDateTime::MinValue() ? TimeOnDisk : InnerPlatformFile->GetAccessTimeStamp(Filename);
}

FString FSuperPlatformFile::GetFilenameOnDisk(const TCHAR* Filename)
{
	return LayerHoldingFile(Filename).GetFilenameOnDisk(Filename);
}

IFileHandle* FSuperPlatformFile::OpenRead(const TCHAR* Filename, bool bAllowWrite)
{
	return LayerHoldingFile(Filename).OpenRead(Filename, bAllowWrite);
}

IFileHandle* FSuperPlatformFile::OpenReadNoBuffering(const TCHAR* Filename, bool bAllowWrite)
{
	return LayerHoldingFile(Filename).OpenReadNoBuffering(Filename, bAllowWrite);
}

IFileHandle* FSuperPlatformFile::OpenWrite(const TCHAR* Filename, bool bAppend, bool bAllowRead)
{
	IFileHandle* DiskHandle = PhysicalPlatformFile->OpenWrite(Filename, bAppend, bAllowRead);
	return DiskHandle != nullptr ? DiskHandle : InnerPlatformFile->OpenWrite(Filename, bAppend, bAllowRead);
}

bool FSuperPlatformFile::DirectoryExists(const TCHAR* Directory)
{
	return PhysicalPlatformFile->DirectoryExists(Directory) || InnerPlatformFile->DirectoryExists(Directory);
}

bool FSuperPlatformFile::CreateDirectory(const TCHAR* Directory)
{
	return PhysicalPlatformFile->CreateDirectory(Directory);
}

bool FSuperPlatformFile::DeleteDirectory(const TCHAR* Directory)
{
	// Directories are made on disk but removed below: a folder that is only on disk stays.
	return InnerPlatformFile->DeleteDirectory(Directory);
}

FFileStatData FSuperPlatformFile::GetStatData(const TCHAR* FilenameOrDirectory)
{
	const FFileStatData StatOnDisk = PhysicalPlatformFile->GetStatData(FilenameOrDirectory);
	return StatOnDisk.bIsValid ? StatOnDisk : InnerPlatformFile->GetStatData(FilenameOrDirectory);
}

bool FSuperPlatformFile::IterateDirectory(const TCHAR* Directory, FDirectoryVisitor& Visitor)
{
	// Listings come from the layer below alone, so loose files on disk never show up in them.
	return InnerPlatformFile->IterateDirectory(Directory, Visitor);
}

bool FSuperPlatformFile::IterateDirectoryStat(const TCHAR* Directory, FDirectoryStatVisitor& Visitor)
{
	return InnerPlatformFile->IterateDirectoryStat(Directory, Visitor);
}

IPlatformFile& FSuperPlatformFile::LayerHoldingFile(const TCHAR* Filename)
{
	return PhysicalPlatformFile->FileExists(Filename) ? *PhysicalPlatformFile : *InnerPlatformFile;
}
