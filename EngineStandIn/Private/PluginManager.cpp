#include "Interfaces/IPluginManager.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
#include "Misc/FileHelper.h"
#include "Misc/MessageDialog.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "StandIn/World.h"
#include "StandInPaths.h"
#include "StandInWorld.h"
#include <nlohmann/json.hpp>
#include <vector>

#define LOCTEXT_NAMESPACE "PluginManager"

DEFINE_LOG_CATEGORY_STATIC(LogPluginManager, Log, All);

namespace
{
	class FPlugin : public IPlugin
	{
	public:
		FPlugin(const FString& InFileName, const FPluginDescriptor& InDescriptor, EPluginType InType)
			: Name(FPaths::GetBaseFilename(InFileName)), FileName(InFileName), Descriptor(InDescriptor), Type(InType)
		{
		}

		virtual const FString& GetName() const override { return Name; }
		virtual const FString& GetDescriptorFileName() const override { return FileName; }
		virtual FString GetBaseDir() const override { return FPaths::GetPath(FileName); }
		virtual FString GetContentDir() const override { return FPaths::GetPath(FileName) / TEXT("Content"); }
		virtual FString GetMountedAssetPath() const override { return TEXT("/") + Name + TEXT("/"); }
		virtual EPluginType GetType() const override { return Type; }
		virtual bool IsEnabled() const override { return bEnabled; }
		virtual bool CanContainContent() const override { return Descriptor.bCanContainContent; }
		virtual EPluginLoadedFrom GetLoadedFrom() const override
		{
			return Type == EPluginType::Engine || Type == EPluginType::Enterprise ? EPluginLoadedFrom::Engine : EPluginLoadedFrom::Project;
		}
		virtual const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }
		virtual bool UpdateDescriptor(const FPluginDescriptor& NewDescriptor, FText& OutFailReason) override
		{
			if (!NewDescriptor.Save(FileName, OutFailReason))
			{
				return false;
			}
			Descriptor = NewDescriptor;
			return true;
		}

		// As the engine decides for a plugin that the project does not list.
		bool IsEnabledByDefault() const
		{
			if (Descriptor.EnabledByDefault != EPluginEnabledByDefault::Unspecified)
			{
				return Descriptor.EnabledByDefault == EPluginEnabledByDefault::Enabled;
			}
			return GetLoadedFrom() == EPluginLoadedFrom::Project;
		}

		FString Name;
		FString FileName;
		FPluginDescriptor Descriptor;
		EPluginType Type;
		bool bEnabled = false;
	};

	// What the plugin manager reads of the project file.
	struct FProjectPlugins
	{
		TArray<FString> AdditionalPluginDirectories;
		std::vector<std::pair<FString, bool>> PluginReferences;
	};

	// A sandbox without a project file stands for a project that lists nothing.
	FProjectPlugins ReadProjectFile()
	{
		FProjectPlugins Project;
		FString Text;
		const FString ProjectFile = FPaths::GetProjectFilePath();
		if (!FFileHelper::LoadFileToString(Text, *ProjectFile))
		{
			return Project;
		}
		const nlohmann::json Object = nlohmann::json::parse(StandIn::ToUtf8(Text), nullptr, false);
		if (!Object.is_object())
		{
			return Project;
		}
		const FString PathToProject = FPaths::GetPath(FPaths::ConvertRelativePathToFull(ProjectFile));
		const auto Directories = Object.find("AdditionalPluginDirectories");
		if (Directories != Object.end() && Directories->is_array())
		{
			for (const nlohmann::json& Entry : *Directories)
			{
				if (!Entry.is_string())
				{
					continue;
				}
				FString Directory = StandIn::FromUtf8(Entry.get<std::string>());
				// Relative entries are taken from the project's folder and kept absolute, as the editor does.
				if (FPaths::IsRelative(Directory))
				{
					Directory = FPaths::ConvertRelativePathToFull(PathToProject / Directory);
				}
				if (!Project.AdditionalPluginDirectories.Contains(Directory))
				{
					Project.AdditionalPluginDirectories.Add(Directory);
				}
			}
		}
		const auto References = Object.find("Plugins");
		if (References != Object.end() && References->is_array())
		{
			for (const nlohmann::json& Entry : *References)
			{
				if (Entry.is_object() && Entry.contains("Name") && Entry["Name"].is_string() && Entry.contains("Enabled") && Entry["Enabled"].is_boolean())
				{
					Project.PluginReferences.emplace_back(StandIn::FromUtf8(Entry["Name"].get<std::string>()), Entry["Enabled"].get<bool>());
				}
			}
		}
		return Project;
	}

	// Plugins in the order found, one per name (names compare without case, as the engine's map keys do).
	using FPluginList = std::vector<TSharedRef<FPlugin>>;

	TSharedRef<FPlugin>* FindIn(FPluginList& Plugins, const FString& Name)
	{
		for (TSharedRef<FPlugin>& Plugin : Plugins)
		{
			if (Plugin->Name == Name)
			{
				return &Plugin;
			}
		}
		return nullptr;
	}

	void AddPlugin(FPluginList& Plugins, const FString& FileName, const FPluginDescriptor& Descriptor, EPluginType Type)
	{
		TSharedRef<FPlugin> Plugin = MakeShared<FPlugin>(FileName, Descriptor, Type);
		TSharedRef<FPlugin>* Existing = FindIn(Plugins, Plugin->Name);
		if (Existing == nullptr)
		{
			Plugins.push_back(Plugin);
		}
		else if ((*Existing)->Type == EPluginType::Engine && Type == EPluginType::Project)
		{
			// The project's copy of an engine plugin wins, in the engine plugin's place.
			*Existing = Plugin;
		}
		else if (((*Existing)->Type != EPluginType::Project || Type != EPluginType::Engine) && (*Existing)->FileName != Plugin->FileName)
		{
			UE_LOG(LogPluginManager, Warning, TEXT("Plugin '%s' exists at '%s' and '%s' - second location will be ignored"), *Plugin->Name, *(*Existing)->FileName, *Plugin->FileName);
		}
	}

	void ReadPluginsInDirectory(const FString& Directory, EPluginType Type, FPluginList& Plugins)
	{
		IPlatformFile& PlatformFile = FPlatformFileManager::Get().GetPlatformFile();
		if (!PlatformFile.DirectoryExists(*Directory))
		{
			return;
		}
		TArray<FString> FileNames;
		PlatformFile.FindFilesRecursively(FileNames, *Directory, TEXT(".uplugin"));
		for (const FString& FileName : FileNames)
		{
			FPluginDescriptor Descriptor;
			FText FailReason;
			if (Descriptor.Load(FileName, FailReason))
			{
				AddPlugin(Plugins, FileName, Descriptor, Type);
			}
			else
			{
				const FText Message = FText::Format(LOCTEXT("FailureFormat", "{0} ({1})"), FailReason, FText::FromString(FPaths::ConvertRelativePathToFull(FileName)));
				const FText Title = LOCTEXT("PluginFailureTitle", "Failed to load Plugin");
				UE_LOG(LogPluginManager, Error, TEXT("%s"), *Message.ToString());
				FMessageDialog::Open(EAppMsgType::Ok, Message, &Title);
			}
		}
	}

	// The folders the engine's plugin manager searches, in its order, each in the form the editor uses.
	FPluginList ReadAllPlugins(const FProjectPlugins& Project)
	{
		FPluginList Plugins;
		// The engine names its own folder from the root above it ("../../../Engine/"), not by the shortest way.
		const FString EngineDir = StandInPaths::RelativeToBaseDir(FPaths::ConvertRelativePathToFull(FPaths::LaunchDir())) + TEXT("Engine/");
		ReadPluginsInDirectory(EngineDir + TEXT("Plugins"), EPluginType::Engine, Plugins);
		ReadPluginsInDirectory(FPaths::ProjectDir() + TEXT("Plugins"), EPluginType::Project, Plugins);
		ReadPluginsInDirectory(FPaths::ProjectDir() + TEXT("Mods/"), EPluginType::Mod, Plugins);
		for (const FString& Directory : Project.AdditionalPluginDirectories)
		{
			ReadPluginsInDirectory(Directory, EPluginType::External, Plugins);
		}
		return Plugins;
	}

	void MountContent(const FPlugin& Plugin)
	{
		if (Plugin.CanContainContent())
		{
			FPackageName::RegisterMountPoint(Plugin.GetMountedAssetPath(), Plugin.GetContentDir());
		}
	}

	class FPluginManager : public IPluginManager
	{
	public:
		virtual void RefreshPluginsList() override
		{
			FPluginList NewPlugins = ReadAllPlugins(ReadProjectFile());
			TArray<FString> EnabledPluginFileNames;
			FPluginList Kept;
			for (const TSharedRef<FPlugin>& Plugin : AllPlugins)
			{
				if (Plugin->bEnabled)
				{
					EnabledPluginFileNames.Add(Plugin->FileName);
					Kept.push_back(Plugin);
				}
			}
			AllPlugins = std::move(Kept);
			for (const TSharedRef<FPlugin>& NewPlugin : NewPlugins)
			{
				if (!EnabledPluginFileNames.Contains(NewPlugin->FileName))
				{
					if (TSharedRef<FPlugin>* Existing = FindIn(AllPlugins, NewPlugin->Name))
					{
						*Existing = NewPlugin;
					}
					else
					{
						AllPlugins.push_back(NewPlugin);
					}
				}
			}
		}

		virtual bool AddToPluginsList(const FString& PluginFilename) override
		{
			if (FindIn(AllPlugins, FPaths::GetBaseFilename(PluginFilename)))
			{
				return true;
			}
			FPluginDescriptor Descriptor;
			FText FailureReason;
			if (!Descriptor.Load(PluginFilename, FailureReason))
			{
				UE_LOG(LogPluginManager, Warning, TEXT("AddToPluginsList failed to load plugin %s. Reason: %s"), *PluginFilename, *FailureReason.ToString());
				return false;
			}
			// The type comes from where the descriptor lies, judged by the start of its path as given.
			EPluginType Type = EPluginType::External;
			if (PluginFilename.StartsWith(FPaths::EngineDir()))
			{
				Type = EPluginType::Engine;
			}
			else if (PluginFilename.StartsWith(FPaths::ProjectDir() + TEXT("Mods/")))
			{
				Type = EPluginType::Mod;
			}
			else if (PluginFilename.StartsWith(FPaths::GetPath(FPaths::GetProjectFilePath())))
			{
				Type = EPluginType::Project;
			}
			AllPlugins.push_back(MakeShared<FPlugin>(PluginFilename, Descriptor, Type));
			return true;
		}

		virtual TSharedPtr<IPlugin> FindPlugin(const FString& Name) override
		{
			TSharedRef<FPlugin>* Plugin = FindIn(AllPlugins, Name);
			return Plugin ? TSharedPtr<IPlugin>(*Plugin) : TSharedPtr<IPlugin>();
		}

		virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() override
		{
			TArray<TSharedRef<IPlugin>> Plugins;
			Plugins.Reserve((int32)AllPlugins.size());
			for (const TSharedRef<FPlugin>& Plugin : AllPlugins)
			{
				Plugins.Add(Plugin);
			}
			return Plugins;
		}

		virtual void MountNewlyCreatedPlugin(const FString& PluginName) override
		{
			if (TSharedRef<FPlugin>* Plugin = FindIn(AllPlugins, PluginName))
			{
				(*Plugin)->bEnabled = true;
				MountContent(**Plugin);
			}
		}

		// Start-up: every plugin found, those the project or their own default enables switched on and
		// their content mounted.
		void DiscoverAll()
		{
			const FProjectPlugins Project = ReadProjectFile();
			AllPlugins = ReadAllPlugins(Project);
			for (const TSharedRef<FPlugin>& Plugin : AllPlugins)
			{
				Plugin->bEnabled = Plugin->IsEnabledByDefault();
				for (const std::pair<FString, bool>& Reference : Project.PluginReferences)
				{
					if (Reference.first == Plugin->Name)
					{
						Plugin->bEnabled = Reference.second;
					}
				}
				if (Plugin->bEnabled)
				{
					MountContent(*Plugin);
				}
			}
		}

		void Forget()
		{
			AllPlugins.clear();
		}

	private:
		FPluginList AllPlugins;
	};

	FPluginManager& Manager()
	{
		static FPluginManager Instance;
		return Instance;
	}
}

IPluginManager& IPluginManager::Get()
{
	return Manager();
}

namespace StandInPlugins
{
	void Forget()
	{
		Manager().Forget();
	}
}

namespace StandIn
{
	void DiscoverPlugins()
	{
		Manager().DiscoverAll();
	}
}

#undef LOCTEXT_NAMESPACE
