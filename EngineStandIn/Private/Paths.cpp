#include "Misc/Paths.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "StandInPaths.h"
#include <cwctype>

namespace
{
	bool IsSlashOrBackslash(TCHAR Char)
	{
		return Char == L'/' || Char == L'\\';
	}

	FString ProjectFolderOf(const FString& ProjectFilePath)
	{
		int32 LastSeparator = ProjectFilePath.Len() - 1;
		while (LastSeparator >= 0 && !IsSlashOrBackslash(ProjectFilePath[LastSeparator]))
		{
			--LastSeparator;
		}
		return ProjectFilePath.Left(LastSeparator + 1);
	}
}

namespace StandInPaths
{
	FString RelativeToBaseDir(const FString& AbsoluteFolder)
	{
		const FString Base = FPlatformProcess::BaseDir();
		if (Base.Len() < 2 || AbsoluteFolder.Len() < 2 || !Base.Left(2).Equals(AbsoluteFolder.Left(2), ESearchCase::IgnoreCase))
		{
			return AbsoluteFolder;
		}
		TArray<FString> BaseParts;
		TArray<FString> FolderParts;
		Base.ParseIntoArray(BaseParts, TEXT("/"));
		AbsoluteFolder.ParseIntoArray(FolderParts, TEXT("/"));
		int32 Common = 0;
		while (Common < BaseParts.Num() && Common < FolderParts.Num() && BaseParts[Common] == FolderParts[Common])
		{
			++Common;
		}
		FString Relative;
		for (int32 Index = Common; Index < BaseParts.Num(); ++Index)
		{
			Relative += TEXT("../");
		}
		for (int32 Index = Common; Index < FolderParts.Num(); ++Index)
		{
			Relative += FolderParts[Index] + TEXT("/");
		}
		return Relative;
	}
}

// The binaries folder is always <root>/Engine/Binaries/Win64/, and the engine gives its own folder relative
// to it.
FString FPaths::EngineDir()
{
	return TEXT("../../../Engine/");
}

FString FPaths::RootDir()
{
	return ConvertRelativePathToFull(TEXT("../../../"));
}

FString FPaths::ProjectDir()
{
	return StandInPaths::RelativeToBaseDir(ConvertRelativePathToFull(ProjectFolderOf(GetProjectFilePath())));
}

FString FPaths::ProjectPluginsDir()
{
	return ProjectDir() + TEXT("Plugins/");
}

bool FPaths::IsRelative(const FString& InPath)
{
	const bool bIsRooted = InPath.StartsWith(TEXT("\\"), ESearchCase::CaseSensitive) || InPath.StartsWith(TEXT("/"), ESearchCase::CaseSensitive) || (InPath.Len() >= 2 && FChar::IsAlpha(InPath[0]) && InPath[1] == L':');
	return !bIsRooted;
}

void FPaths::NormalizeFilename(FString& InPath)
{
	InPath.ReplaceInline(TEXT("\\"), TEXT("/"), ESearchCase::CaseSensitive);
}

bool FPaths::CollapseRelativeDirectories(FString& InPath)
{
	const TCHAR ParentDir[] = TEXT("/..");
	const int32 ParentDirLength = 3;
	for (;;)
	{
		if (InPath.IsEmpty())
		{
			break;
		}
		if (InPath.StartsWith(TEXT(".."), ESearchCase::CaseSensitive) || InPath.StartsWith(ParentDir, ESearchCase::CaseSensitive))
		{
			return false;
		}
		const int32 Index = InPath.Find(ParentDir, ESearchCase::CaseSensitive);
		if (Index == INDEX_NONE)
		{
			break;
		}
		int32 PreviousSeparatorIndex = Index;
		for (;;)
		{
			PreviousSeparatorIndex = std::max(0, InPath.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd, PreviousSeparatorIndex - 1));
			if (PreviousSeparatorIndex == 0)
			{
				break;
			}
			if ((Index - PreviousSeparatorIndex) > 1 && (InPath[PreviousSeparatorIndex + 1] != L'.' || InPath[PreviousSeparatorIndex + 2] != L'/'))
			{
				break;
			}
		}
		// Never above a drive letter.
		const int32 Colon = InPath.Find(TEXT(":"), ESearchCase::CaseSensitive, ESearchDir::FromStart, PreviousSeparatorIndex);
		if (Colon >= 0 && Colon < Index)
		{
			return false;
		}
		InPath = InPath.Left(PreviousSeparatorIndex) + InPath.Mid(Index + ParentDirLength);
	}
	InPath.ReplaceInline(TEXT("./"), TEXT(""), ESearchCase::CaseSensitive);
	return true;
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	return ConvertRelativePathToFull(FString(FPlatformProcess::BaseDir()), InPath);
}

FString FPaths::ConvertRelativePathToFull(const FString& BasePath, const FString& InPath)
{
	FString FullyPathed;
	if (IsRelative(InPath))
	{
		FullyPathed = BasePath;
		FullyPathed /= InPath;
	}
	else
	{
		FullyPathed = InPath;
	}
	NormalizeFilename(FullyPathed);
	CollapseRelativeDirectories(FullyPathed);
	if (FullyPathed.IsEmpty())
	{
		FullyPathed = TEXT("/");
	}
	return FullyPathed;
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	int32 EndPos = InPath.Len();
	while (EndPos > 0 && IsSlashOrBackslash(InPath[EndPos - 1]))
	{
		--EndPos;
	}
	int32 StartPos = EndPos;
	while (StartPos > 0 && !IsSlashOrBackslash(InPath[StartPos - 1]))
	{
		--StartPos;
	}
	return InPath.Mid(StartPos, EndPos - StartPos);
}

bool FPaths::FileExists(const FString& InPath)
{
	return IFileManager::Get().FileExists(*InPath);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	return IFileManager::Get().DirectoryExists(*InPath);
}

FString FPaths::GetPath(const FString& InPath)
{
	int32 Separator = InPath.Len() - 1;
	while (Separator >= 0 && !IsSlashOrBackslash(InPath[Separator]))
	{
		--Separator;
	}
	return Separator >= 0 ? InPath.Left(Separator) : FString();
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	FString Name = bRemovePath ? GetCleanFilename(InPath) : InPath;
	const int32 Dot = Name.Find(TEXT("."), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	const int32 Separator = std::max(Name.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd), Name.Find(TEXT("\\"), ESearchCase::CaseSensitive, ESearchDir::FromEnd));
	return Dot != INDEX_NONE && Dot > Separator ? Name.Left(Dot) : Name;
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const FString Filename = GetCleanFilename(InPath);
	const int32 Dot = Filename.Find(TEXT("."), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	return Dot != INDEX_NONE ? Filename.Mid(bIncludeDot ? Dot : Dot + 1) : FString();
}
