#include "PluginUtils.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "PluginDescriptor.h"
#include "StandIn/Journal.h"
#include "StandIn/Records/BuildToolRecord.h"
#include <cwctype>
#include <memory>
#include <string>

#define LOCTEXT_NAMESPACE "PluginUtils"

namespace
{
	const FString PLUGIN_NAME = TEXT("PLUGIN_NAME");

	FString NormalizeDirectoryName(const FString& Directory)
	{
		FString Result = Directory;
		FPaths::NormalizeFilename(Result);
		while (Result.EndsWith(TEXT("/"), ESearchCase::CaseSensitive) && !Result.EndsWith(TEXT(":/"), ESearchCase::CaseSensitive))
		{
			Result = Result.Left(Result.Len() - 1);
		}
		return Result;
	}

	FString ToUpper(const FString& Text)
	{
		std::wstring Upper(*Text);
		for (wchar_t& Char : Upper)
		{
			Char = (wchar_t)towupper(Char);
		}
		return FString(Upper.c_str());
	}

	class FCopyPluginFilesAndDirs : public IPlatformFile::FDirectoryVisitor
	{
	public:
		FCopyPluginFilesAndDirs(IPlatformFile& InPlatformFile, const FString& InSourceRoot, const FString& InDestRoot, const FString& InPluginName, FText& InFailReason)
			: PlatformFile(InPlatformFile), SourceRoot(InSourceRoot), DestRoot(InDestRoot), PluginName(InPluginName), FailReason(InFailReason)
		{
			NameReplacementFileTypes = {TEXT("cs"), TEXT("cpp"), TEXT("h"), TEXT("vcxproj")};
			IgnoredFileTypes = {TEXT("opensdf"), TEXT("sdf"), TEXT("user"), TEXT("suo")};
			CopyUnmodifiedFileTypes = {TEXT("uasset"), TEXT("umap")};
		}

		virtual bool Visit(const TCHAR* FilenameOrDirectory, bool bIsDirectory) override
		{
			FString NewName(FilenameOrDirectory);
			if (NewName.StartsWith(SourceRoot))
			{
				NewName = NewName.Mid(SourceRoot.Len());
			}
			NewName = NewName.Replace(*PLUGIN_NAME, *PluginName, ESearchCase::CaseSensitive);
			NewName = FPaths::Combine(DestRoot, NewName);

			if (bIsDirectory)
			{
				if (!PlatformFile.CreateDirectoryTree(*NewName) && !PlatformFile.DirectoryExists(*NewName))
				{
					FailReason = FText::Format(LOCTEXT("FailedToCreatePluginSubFolder", "Failed to create plugin subfolder '{0}'"), FText::FromString(FPaths::ConvertRelativePathToFull(NewName)));
					return false;
				}
				return true;
			}

			// Extensions compare without case, as the engine's array of names does.
			const FString NewExt = FPaths::GetExtension(FilenameOrDirectory);
			if (IgnoredFileTypes.Contains(NewExt))
			{
				return true;
			}
			if (CopyUnmodifiedFileTypes.Contains(NewExt))
			{
				NewName = FPaths::Combine(FPaths::GetPath(NewName), FPaths::GetCleanFilename(FilenameOrDirectory));
			}
			if (PlatformFile.FileExists(*NewName))
			{
				PlatformFile.DeleteFile(*NewName);
			}
			if (NameReplacementFileTypes.Contains(NewExt))
			{
				FString Contents;
				if (!FFileHelper::LoadFileToString(Contents, FilenameOrDirectory))
				{
					FailReason = FText::Format(LOCTEXT("FailedToReadPluginTemplateFile", "Failed to read plugin template file '{0}'"), FText::FromString(FPaths::ConvertRelativePathToFull(FilenameOrDirectory)));
					return false;
				}
				Contents = Contents.Replace(*PLUGIN_NAME, *PluginName, ESearchCase::CaseSensitive);
				// Export macros are the name in capitals.
				const FString PluginNameAPI = PluginName + TEXT("_API");
				Contents = Contents.Replace(*PluginNameAPI, *ToUpper(PluginNameAPI), ESearchCase::CaseSensitive);
				if (!FFileHelper::SaveStringToFile(Contents, *NewName))
				{
					FailReason = FText::Format(LOCTEXT("FailedToWritePluginFile", "Failed to write plugin file '{0}'"), FText::FromString(FPaths::ConvertRelativePathToFull(NewName)));
					return false;
				}
			}
			else if (!PlatformFile.CopyFile(*NewName, FilenameOrDirectory))
			{
				FailReason = FText::Format(LOCTEXT("FailedToCopyPluginTemplateFile", "Failed to copy plugin template file '{0}' to '{1}'"), FText::FromString(FPaths::ConvertRelativePathToFull(FilenameOrDirectory)), FText::FromString(FPaths::ConvertRelativePathToFull(NewName)));
				return false;
			}
			return true;
		}

	private:
		IPlatformFile& PlatformFile;
		FString SourceRoot;
		FString DestRoot;
		FString PluginName;
		FText& FailReason;
		TArray<FString> NameReplacementFileTypes;
		TArray<FString> IgnoredFileTypes;
		TArray<FString> CopyUnmodifiedFileTypes;
	};

	bool CopyPluginTemplateFolder(const FString& DestinationDirectory, const FString& Source, const FString& PluginName, FText& FailReason)
	{
		IPlatformFile& PlatformFile = FPlatformFileManager::Get().GetPlatformFile();
		const FString DestDir = NormalizeDirectoryName(DestinationDirectory);
		const FString SourceDir = NormalizeDirectoryName(Source);
		if (!PlatformFile.DirectoryExists(*SourceDir))
		{
			FailReason = FText::Format(LOCTEXT("InvalidPluginTemplateFolder", "Plugin template folder '{0}' doesn't exist"), FText::FromString(FPaths::ConvertRelativePathToFull(SourceDir)));
			return false;
		}
		if (!PlatformFile.DirectoryExists(*DestDir) && !PlatformFile.CreateDirectoryTree(*DestDir))
		{
			FailReason = FText::Format(LOCTEXT("FailedToCreateDestinationFolder", "Failed to create destination folder '{0}'"), FText::FromString(FPaths::ConvertRelativePathToFull(DestDir)));
			return false;
		}
		FCopyPluginFilesAndDirs CopyFilesAndDirs(PlatformFile, SourceDir, DestDir, PluginName, FailReason);
		return PlatformFile.IterateDirectoryRecursively(*SourceDir, CopyFilesAndDirs);
	}

	TSharedPtr<IPlugin> MountPlugin(const FString& PluginName, const FString& PluginLocation, FText& FailReason)
	{
		IPluginManager::Get().RefreshPluginsList();
		TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(PluginName);
		if (!Plugin.IsValid())
		{
			FailReason = FText::Format(LOCTEXT("FailedToRegisterPlugin", "Failed to register plugin '{0}'"), FText::FromString(StandInPluginUtils::GetPluginFilePath(PluginLocation, PluginName)));
			return TSharedPtr<IPlugin>();
		}
		IPluginManager::Get().MountNewlyCreatedPlugin(PluginName);
		return Plugin;
	}
}

namespace StandInPluginUtils
{
	FString GetPluginFilePath(const FString& PluginLocation, const FString& PluginName)
	{
		return FPaths::ConvertRelativePathToFull(FPaths::Combine(PluginLocation, PluginName, PluginName + TEXT(".uplugin")));
	}

	TSharedPtr<IPlugin> CreateAndMountNewPlugin(const FString& PluginName, const FString& PluginLocation, const FNewPluginParams& CreationParams, FText& FailReason)
	{
		IPlatformFile& PlatformFile = FPlatformFileManager::Get().GetPlatformFile();
		const FString PluginFilePath = GetPluginFilePath(PluginLocation, PluginName);
		const FString PluginFolder = FPaths::ConvertRelativePathToFull(FPaths::Combine(PluginLocation, PluginName));

		if (PlatformFile.FileExists(*PluginFilePath))
		{
			FailReason = FText::Format(LOCTEXT("PluginAlreadyExists", "Plugin named {0} already exists at destination '{1}'"), FText::FromString(PluginName), FText::FromString(PluginFolder));
			return TSharedPtr<IPlugin>();
		}
		if (const TSharedPtr<IPlugin> Existing = IPluginManager::Get().FindPlugin(PluginName))
		{
			FailReason = FText::Format(LOCTEXT("PluginNameAlreadyUsed", "There's already a plugin named {0} at this location: '{1}'"), FText::FromString(PluginName), FText::FromString(FPaths::ConvertRelativePathToFull(Existing->GetDescriptorFileName())));
			return TSharedPtr<IPlugin>();
		}

		TSharedPtr<IPlugin> NewPlugin;
		bool bSucceeded = true;
		do
		{
			if (!PlatformFile.DirectoryExists(*PluginFolder) && !PlatformFile.CreateDirectoryTree(*PluginFolder))
			{
				FailReason = FText::Format(LOCTEXT("FailedToCreatePluginFolder", "Failed to create plugin folder '{0}'"), FText::FromString(PluginFolder));
				bSucceeded = false;
				break;
			}

			if (CreationParams.bCanContainContent)
			{
				const FString PluginContentFolder = PluginFolder / TEXT("Content");
				if (!PlatformFile.DirectoryExists(*PluginContentFolder) && !PlatformFile.CreateDirectory(*PluginContentFolder))
				{
					FailReason = FText::Format(LOCTEXT("FailedToCreatePluginContentFolder", "Failed to create plugin Content folder '{0}'"), FText::FromString(PluginContentFolder));
					bSucceeded = false;
					break;
				}
			}

			FPluginDescriptor Descriptor;
			Descriptor.FriendlyName = PluginName;
			Descriptor.Version = 1;
			Descriptor.VersionName = TEXT("1.0");
			Descriptor.Category = TEXT("Other");
			Descriptor.bCanContainContent = CreationParams.bCanContainContent;
			if (CreationParams.bHasModules)
			{
				Descriptor.Modules.Add(FModuleDescriptor(FName(PluginName), CreationParams.ModuleDescriptorType, CreationParams.LoadingPhase));
			}
			if (!Descriptor.Save(PluginFilePath, FailReason))
			{
				bSucceeded = false;
				break;
			}

			if (!CreationParams.PluginIconPath.IsEmpty())
			{
				const FString ResourcesFolder = PluginFolder / TEXT("Resources");
				const FString DestinationPluginIconPath = ResourcesFolder / TEXT("Icon128.png");
				// Never over a file that is already there.
				const bool bCopied = !PlatformFile.FileExists(*DestinationPluginIconPath) && PlatformFile.FileExists(*CreationParams.PluginIconPath) && PlatformFile.CreateDirectoryTree(*ResourcesFolder) && PlatformFile.CopyFile(*DestinationPluginIconPath, *CreationParams.PluginIconPath);
				if (!bCopied)
				{
					FailReason = FText::Format(LOCTEXT("FailedToCopyPluginIcon", "Failed to copy plugin icon from '{0}' to '{1}'"), FText::FromString(FPaths::ConvertRelativePathToFull(CreationParams.PluginIconPath)), FText::FromString(DestinationPluginIconPath));
					bSucceeded = false;
					break;
				}
			}

			for (const FString& TemplateFolder : CreationParams.TemplateFolders)
			{
				if (!CopyPluginTemplateFolder(PluginFolder, TemplateFolder, PluginName, FailReason))
				{
					FailReason = FText::Format(LOCTEXT("FailedToCopyPluginTemplate", "Failed to copy plugin template files from '{0}' to '{1}'. {2}"), FText::FromString(FPaths::ConvertRelativePathToFull(TemplateFolder)), FText::FromString(PluginFolder), FailReason);
					bSucceeded = false;
					break;
				}
			}
			if (!bSucceeded)
			{
				break;
			}

			if (CreationParams.bHasModules)
			{
				const FString ProjectFileName = FPaths::ConvertRelativePathToFull(FPaths::GetProjectFilePath());
				const FString Arguments = FString::Printf(TEXT("%s %s %s -Plugin=\"%s\" -Project=\"%s\" -Progress -NoHotReloadFromIDE"), TEXT("CalverlyPublicEditor"), TEXT("Development"), TEXT("Win64"), *PluginFilePath, *ProjectFileName);
				StandIn::AppendToJournal(std::make_shared<StandIn::FBuildToolRecord>(FText::Format(LOCTEXT("CompilingPlugin", "Compiling {0} plugin..."), FText::FromString(PluginName)), Arguments));
			}

			NewPlugin = MountPlugin(PluginName, PluginLocation, FailReason);
			if (!NewPlugin.IsValid())
			{
				bSucceeded = false;
				break;
			}
		} while (false);

		if (!bSucceeded)
		{
			PlatformFile.DeleteDirectoryRecursively(*PluginFolder);
			if (NewPlugin.IsValid())
			{
				IPluginManager::Get().RefreshPluginsList();
				NewPlugin.Reset();
			}
		}
		return NewPlugin;
	}
}

#undef LOCTEXT_NAMESPACE
