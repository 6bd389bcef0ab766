#include "PluginDescriptor.h"
#include "Misc/FileHelper.h"
#include "ModuleDescriptor.h"
#include "StandIn/World.h"
#include <nlohmann/json.hpp>

#define LOCTEXT_NAMESPACE "PluginDescriptor"

namespace
{
	// The descriptor file format version 4.26 writes (EProjectDescriptorVersion::Latest).
	const int32 LatestFileVersion = 3;

	const TCHAR* const LoadingPhaseNames[] = {TEXT("EarliestPossible"), TEXT("PostConfigInit"), TEXT("PostSplashScreen"), TEXT("PreEarlyLoadingScreen"), TEXT("PreLoadingScreen"), TEXT("PreDefault"), TEXT("Default"), TEXT("PostDefault"), TEXT("PostEngineInit"), TEXT("None")};
	const TCHAR* const HostTypeNames[] = {TEXT("Runtime"), TEXT("RuntimeNoCommandlet"), TEXT("RuntimeAndProgram"), TEXT("CookedOnly"), TEXT("UncookedOnly"), TEXT("Developer"), TEXT("DeveloperTool"), TEXT("Editor"), TEXT("EditorNoCommandlet"), TEXT("EditorAndProgram"), TEXT("Program"), TEXT("ServerOnly"), TEXT("ClientOnly"), TEXT("ClientOnlyNoCommandlet")};

	template <typename EnumType, size_t Count>
	EnumType EnumFromString(const TCHAR* const (&Names)[Count], const TCHAR* Text, EnumType Max)
	{
		for (size_t Index = 0; Index < Count; ++Index)
		{
			if (FString(Names[Index]).Equals(Text, ESearchCase::IgnoreCase))
			{
				return (EnumType)Index;
			}
		}
		return Max;
	}

	FString StringField(const nlohmann::json& Object, const char* Name, const FString& Default)
	{
		const auto It = Object.find(Name);
		return It != Object.end() && It->is_string() ? StandIn::FromUtf8(It->get<std::string>()) : Default;
	}

	bool BoolField(const nlohmann::json& Object, const char* Name, bool Default)
	{
		const auto It = Object.find(Name);
		return It != Object.end() && It->is_boolean() ? It->get<bool>() : Default;
	}
}

ELoadingPhase::Type ELoadingPhase::FromString(const TCHAR* Text)
{
	return EnumFromString(LoadingPhaseNames, Text, ELoadingPhase::Max);
}

const TCHAR* ELoadingPhase::ToString(const ELoadingPhase::Type Value)
{
	return Value >= 0 && Value < ELoadingPhase::Max ? LoadingPhaseNames[Value] : TEXT("Default");
}

EHostType::Type EHostType::FromString(const TCHAR* Text)
{
	return EnumFromString(HostTypeNames, Text, EHostType::Max);
}

const TCHAR* EHostType::ToString(const EHostType::Type Value)
{
	return Value >= 0 && Value < EHostType::Max ? HostTypeNames[Value] : TEXT("Runtime");
}

FModuleDescriptor::FModuleDescriptor(const FName InName, EHostType::Type InType, ELoadingPhase::Type InLoadingPhase)
	: Name(InName), Type(InType), LoadingPhase(InLoadingPhase)
{
}

FPluginDescriptor::FPluginDescriptor()
	: Version(0), EnabledByDefault(EPluginEnabledByDefault::Unspecified), bCanContainContent(false), bIsBetaVersion(false), bIsExperimentalVersion(false), bInstalled(false), bIsHidden(false), bExplicitlyLoaded(false)
{
}

bool FPluginDescriptor::Load(const FString& FileName, FText& OutFailReason)
{
	FString FileContents;
	if (!FFileHelper::LoadFileToString(FileContents, *FileName))
	{
		OutFailReason = FText::Format(LOCTEXT("FailedToLoadDescriptorFile", "Failed to open descriptor file '{0}'"), FText::FromString(FileName));
		return false;
	}
	return Read(FileContents, OutFailReason);
}

bool FPluginDescriptor::Read(const FString& Text, FText& OutFailReason)
{
	const nlohmann::json Object = nlohmann::json::parse(StandIn::ToUtf8(Text), nullptr, false);
	if (!Object.is_object())
	{
		OutFailReason = LOCTEXT("FailedToReadDescriptorFile", "Failed to read file.");
		return false;
	}

	const auto FileVersion = Object.contains("FileVersion") ? Object.find("FileVersion") : Object.find("PluginFileVersion");
	if (FileVersion == Object.end() || !FileVersion->is_number())
	{
		OutFailReason = LOCTEXT("InvalidProjectFileVersion", "File does not have a valid 'FileVersion' number.");
		return false;
	}

	if (Object.contains("Version") && Object["Version"].is_number())
	{
		Version = Object["Version"].get<int32>();
	}
	VersionName = StringField(Object, "VersionName", VersionName);
	FriendlyName = StringField(Object, "FriendlyName", FriendlyName);
	Description = StringField(Object, "Description", Description);
	Category = StringField(Object, "Category", StringField(Object, "CategoryPath", Category));
	CreatedBy = StringField(Object, "CreatedBy", CreatedBy);
	CreatedByURL = StringField(Object, "CreatedByURL", CreatedByURL);
	DocsURL = StringField(Object, "DocsURL", DocsURL);
	MarketplaceURL = StringField(Object, "MarketplaceURL", MarketplaceURL);
	SupportURL = StringField(Object, "SupportURL", SupportURL);
	EngineVersion = StringField(Object, "EngineVersion", EngineVersion);

	const auto ModulesField = Object.find("Modules");
	if (ModulesField != Object.end() && ModulesField->is_array())
	{
		for (const nlohmann::json& Module : *ModulesField)
		{
			if (!Module.is_object() || !Module.contains("Name") || !Module["Name"].is_string())
			{
				OutFailReason = LOCTEXT("ModuleWithoutAName", "Found a 'Module' entry with a missing 'Name' field");
				return false;
			}
			FModuleDescriptor& Descriptor = Modules[Modules.AddDefaulted()];
			Descriptor.Name = FName(StandIn::FromUtf8(Module["Name"].get<std::string>()));
			Descriptor.Type = EHostType::FromString(*StringField(Module, "Type", FString(TEXT("Runtime"))));
			Descriptor.LoadingPhase = ELoadingPhase::FromString(*StringField(Module, "LoadingPhase", FString(TEXT("Default"))));
		}
	}

	if (Object.contains("EnabledByDefault") && Object["EnabledByDefault"].is_boolean())
	{
		EnabledByDefault = Object["EnabledByDefault"].get<bool>() ? EPluginEnabledByDefault::Enabled : EPluginEnabledByDefault::Disabled;
	}
	bCanContainContent = BoolField(Object, "CanContainContent", bCanContainContent);
	bIsBetaVersion = BoolField(Object, "IsBetaVersion", bIsBetaVersion);
	bIsExperimentalVersion = BoolField(Object, "IsExperimentalVersion", bIsExperimentalVersion);
	bInstalled = BoolField(Object, "Installed", bInstalled);
	bIsHidden = BoolField(Object, "Hidden", bIsHidden);
	bExplicitlyLoaded = BoolField(Object, "ExplicitlyLoaded", bExplicitlyLoaded);
	return true;
}

bool FPluginDescriptor::Save(const FString& FileName, FText& OutFailReason) const
{
	FString Text;
	Write(Text);
	if (!FFileHelper::SaveStringToFile(Text, *FileName))
	{
		OutFailReason = FText::Format(LOCTEXT("FailedToWriteOutputFile", "Failed to write plugin descriptor file '{0}'. Perhaps the file is Read-Only?"), FText::FromString(FileName));
		return false;
	}
	return true;
}

// In the engine's field order, the optional fields only when set, tab-indented with Windows line ends as
// its pretty JSON writer leaves them.
void FPluginDescriptor::Write(FString& Text) const
{
	nlohmann::ordered_json Object;
	Object["FileVersion"] = LatestFileVersion;
	Object["Version"] = Version;
	Object["VersionName"] = StandIn::ToUtf8(VersionName);
	Object["FriendlyName"] = StandIn::ToUtf8(FriendlyName);
	Object["Description"] = StandIn::ToUtf8(Description);
	Object["Category"] = StandIn::ToUtf8(Category);
	Object["CreatedBy"] = StandIn::ToUtf8(CreatedBy);
	Object["CreatedByURL"] = StandIn::ToUtf8(CreatedByURL);
	Object["DocsURL"] = StandIn::ToUtf8(DocsURL);
	Object["MarketplaceURL"] = StandIn::ToUtf8(MarketplaceURL);
	Object["SupportURL"] = StandIn::ToUtf8(SupportURL);
	if (!EngineVersion.IsEmpty())
	{
		Object["EngineVersion"] = StandIn::ToUtf8(EngineVersion);
	}
	if (EnabledByDefault != EPluginEnabledByDefault::Unspecified)
	{
		Object["EnabledByDefault"] = EnabledByDefault == EPluginEnabledByDefault::Enabled;
	}
	Object["CanContainContent"] = bCanContainContent;
	Object["IsBetaVersion"] = bIsBetaVersion;
	Object["IsExperimentalVersion"] = bIsExperimentalVersion;
	Object["Installed"] = bInstalled;
	if (Modules.Num() > 0)
	{
		nlohmann::ordered_json ModuleArray = nlohmann::ordered_json::array();
		for (const FModuleDescriptor& Module : Modules)
		{
			nlohmann::ordered_json Entry;
			Entry["Name"] = StandIn::ToUtf8(Module.Name.ToString());
			Entry["Type"] = StandIn::ToUtf8(EHostType::ToString(Module.Type));
			Entry["LoadingPhase"] = StandIn::ToUtf8(ELoadingPhase::ToString(Module.LoadingPhase));
			ModuleArray.push_back(Entry);
		}
		Object["Modules"] = ModuleArray;
	}
	if (bIsHidden)
	{
		Object["Hidden"] = true;
	}
	if (bExplicitlyLoaded)
	{
		Object["ExplicitlyLoaded"] = true;
	}

	std::string Json = Object.dump(1, '\t');
	std::string WithWindowsLineEnds;
	for (const char Char : Json)
	{
		if (Char == '\n')
		{
			WithWindowsLineEnds += '\r';
		}
		WithWindowsLineEnds += Char;
	}
	Text = StandIn::FromUtf8(WithWindowsLineEnds);
}

#undef LOCTEXT_NAMESPACE
