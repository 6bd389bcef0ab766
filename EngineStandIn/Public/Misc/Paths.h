#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include <utility>

class FPaths
{
public:
	static FString LaunchDir();
	static FString EngineDir();
	static FString RootDir();
	static FString ProjectDir();
	static FString ProjectPluginsDir();
	static FString GetProjectFilePath();

	static FString ConvertRelativePathToFull(const FString& InPath);
	static FString ConvertRelativePathToFull(const FString& BasePath, const FString& InPath);
	static bool CollapseRelativeDirectories(FString& InPath);
	static bool IsRelative(const FString& InPath);
	static void NormalizeFilename(FString& InPath);

	static FString GetCleanFilename(const FString& InPath);
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	static FString GetPath(const FString& InPath);
	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);

	static bool FileExists(const FString& InPath);
	static bool DirectoryExists(const FString& InPath);

	template <typename... PathTypes>
	static FString Combine(PathTypes&&... InPaths)
	{
		const TCHAR* Paths[] = {GetTCharPtr(std::forward<PathTypes>(InPaths))...};
		FString Out;
		for (const TCHAR* Path : Paths)
		{
			Out /= Path;
		}
		return Out;
	}

private:
	static const TCHAR* GetTCharPtr(const TCHAR* Ptr) { return Ptr; }
	static const TCHAR* GetTCharPtr(const FString& Str) { return *Str; }
};
