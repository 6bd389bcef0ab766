#pragma once

#include "CoreMinimal.h"

// Long package names ("/Game/Maps/Hub", "/MyRoute/Maps/Main") and the content folders they are mounted from.
class COREUOBJECT_API FPackageName
{
public:
	// The mounted content folder of the name's root, then the rest of the name and the extension; false when
	// no mount point's root starts the name.
	static bool TryConvertLongPackageNameToFilename(const FString& InLongPackageName, FString& OutFilename, const FString& InExtension = TEXT(""));
	// Mounts a content folder at a root ("/MyRoute/"); the newest mount is tried first.
	static void RegisterMountPoint(const FString& RootPath, const FString& ContentPath);
};
