#include "ProjectChecks.h"
#include "HAL/PlatformFilemanager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "StandIn/World.h"
#include <nlohmann/json.hpp>

namespace
{
	void RefuseUnreadableProjectFile()
	{
		const FString ProjectFile = FPaths::GetProjectFilePath();
		const std::string Shown = Quoted(StandIn::ToUtf8(ProjectFile));
		if (!FPaths::FileExists(ProjectFile))
		{
			throw FUsageError{"the project file " + Shown + " is not there"};
		}
		FString Text;
		if (!FFileHelper::LoadFileToString(Text, *ProjectFile))
		{
			throw FUsageError{"the project file " + Shown + " cannot be read"};
		}
		if (!nlohmann::json::accept(StandIn::ToUtf8(Text)))
		{
			throw FUsageError{"the project file " + Shown + " is not JSON"};
		}
	}

	bool IsReadableFolder(IPlatformFile& PlatformFile, const TCHAR* Folder)
	{
		return PlatformFile.IterateDirectory(Folder, [](const TCHAR*, bool) {
			return true;
		});
	}

	// The first folder at or below Folder that cannot be listed; empty when all can.
	FString FirstUnreadableFolder(IPlatformFile& PlatformFile, const FString& Folder)
	{
		if (!IsReadableFolder(PlatformFile, *Folder))
		{
			return Folder;
		}
		FString Unreadable;
		PlatformFile.IterateDirectoryRecursively(*Folder, [&PlatformFile, &Unreadable](const TCHAR* Path, bool bIsDirectory) {
			if (bIsDirectory && !IsReadableFolder(PlatformFile, Path))
			{
				Unreadable = Path;
			}
			return Unreadable.IsEmpty();
		});
		return Unreadable;
	}

	// The wizard copies Templates/BaseTemplate and the chosen templates' folders, and fails with no reason
	// given on a folder it cannot read; so all of them are checked before it runs.
	void RefuseUnusableTemplates()
	{
		IPlatformFile& PlatformFile = FPlatformFileManager::Get().GetPlatformFile();
		const FString Templates = FPaths::ConvertRelativePathToFull(FPaths::Combine(FPaths::ProjectDir(), TEXT("Templates")));
		const FString BaseTemplate = FPaths::Combine(Templates, TEXT("BaseTemplate"));
		const std::string Remedy = "; copy the repository's Templates/ beside the project file";
		if (!PlatformFile.DirectoryExists(*Templates))
		{
			throw FUsageError{"the project has no mod templates: " + Quoted(StandIn::ToUtf8(Templates + TEXT("/"))) + " is not there" + Remedy};
		}
		const FString Unreadable = FirstUnreadableFolder(PlatformFile, Templates);
		if (!Unreadable.IsEmpty())
		{
			throw FUsageError{"the mod template folder " + Quoted(StandIn::ToUtf8(Unreadable + TEXT("/"))) + " cannot be read"};
		}
		if (!PlatformFile.DirectoryExists(*BaseTemplate))
		{
			throw FUsageError{"the mod templates have no base template: " + Quoted(StandIn::ToUtf8(BaseTemplate + TEXT("/"))) + " is not there" + Remedy};
		}
	}
}

void RefuseUnusableProject(const FEditorCommandLine& CommandLine)
{
	RefuseUnreadableProjectFile();
	if (CommandLine.Command == "create" && !CommandLine.bNoPluginBrowser)
	{
		RefuseUnusableTemplates();
	}
}
