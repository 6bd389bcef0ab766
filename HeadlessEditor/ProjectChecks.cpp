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

	// The wizard copies Templates/BaseTemplate and the chosen templates' folders; a folder it cannot read
	// fails the creation with no reason given, so every one is checked here.
	void RefuseUnreadableTemplates()
	{
		IPlatformFile& PlatformFile = FPlatformFileManager::Get().GetPlatformFile();
		const FString Templates = FPaths::ConvertRelativePathToFull(FPaths::Combine(FPaths::ProjectDir(), TEXT("Templates")));
		const FString BaseTemplate = FPaths::Combine(Templates, TEXT("BaseTemplate"));
		for (const FString& Folder : {Templates, BaseTemplate})
		{
			if (!PlatformFile.DirectoryExists(*Folder))
			{
				throw FUsageError{"the project has no mod templates folder " + Quoted(StandIn::ToUtf8(Folder + TEXT("/"))) + "; copy the repository's Templates/ beside the project file"};
			}
		}
		const auto Readable = [](const TCHAR*, bool) {
			return true;
		};
		if (!PlatformFile.IterateDirectoryRecursively(*Templates, Readable))
		{
			FString Unreadable = Templates;
			PlatformFile.IterateDirectoryRecursively(*Templates, [&PlatformFile, &Unreadable](const TCHAR* Path, bool bIsDirectory) {
				if (bIsDirectory && !PlatformFile.IterateDirectory(Path, [](const TCHAR*, bool) {
						return true;
					}))
				{
					Unreadable = Path;
				}
				return true;
			});
			throw FUsageError{"the mod template folder " + Quoted(StandIn::ToUtf8(Unreadable + TEXT("/"))) + " cannot be read"};
		}
	}
}

void RefuseUnusableProject(const FEditorCommandLine& CommandLine)
{
	RefuseUnreadableProjectFile();
	if (CommandLine.Command == "create" && !CommandLine.bNoPluginBrowser)
	{
		RefuseUnreadableTemplates();
	}
}
