#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "StandInPaths.h"
#include "StandInWorld.h"
#include <utility>
#include <vector>

namespace
{
	// Mounted after start-up, newest first, as the engine inserts them.
	std::vector<std::pair<FString, FString>>& PluginMountPoints()
	{
		static std::vector<std::pair<FString, FString>> Instance;
		return Instance;
	}

	// A content folder in the relative form the engine keeps mount points in, with a trailing '/'.
	FString MountedContentPath(const FString& ContentPath)
	{
		return StandInPaths::RelativeToBaseDir(FPaths::ConvertRelativePathToFull(ContentPath));
	}
}

namespace StandInPlugins
{
	void ForgetMountPoints()
	{
		PluginMountPoints().clear();
	}
}

void FPackageName::RegisterMountPoint(const FString& RootPath, const FString& ContentPath)
{
	PluginMountPoints().insert(PluginMountPoints().begin(), std::make_pair(RootPath, MountedContentPath(ContentPath)));
}

bool FPackageName::TryConvertLongPackageNameToFilename(const FString& InLongPackageName, FString& OutFilename, const FString& InExtension)
{
	std::vector<std::pair<FString, FString>> MountPoints = PluginMountPoints();
	MountPoints.emplace_back(TEXT("/Engine/"), StandInPaths::RelativeToBaseDir(FPaths::ConvertRelativePathToFull(FPaths::LaunchDir())) + TEXT("Engine/Content/"));
	MountPoints.emplace_back(TEXT("/Game/"), FPaths::ProjectDir() + TEXT("Content/"));
	for (const std::pair<FString, FString>& MountPoint : MountPoints)
	{
		// The engine compares roots without case.
		if (InLongPackageName.StartsWith(MountPoint.first))
		{
			OutFilename = MountPoint.second + InLongPackageName.Mid(MountPoint.first.Len()) + InExtension;
			return true;
		}
	}
	return false;
}
