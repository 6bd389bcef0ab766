#pragma once

#include "CoreMinimal.h"
#include "ModuleDescriptor.h"

// Whether a plugin is enabled when no project lists it.
enum class EPluginEnabledByDefault : uint8
{
	Unspecified,
	Enabled,
	Disabled,
};

// The contents of a .uplugin file.
struct PROJECTS_API FPluginDescriptor
{
	int32 Version;
	FString VersionName;
	FString FriendlyName;
	FString Description;
	FString Category;
	FString CreatedBy;
	FString CreatedByURL;
	FString DocsURL;
	FString MarketplaceURL;
	FString SupportURL;
	FString EngineVersion;
	TArray<FModuleDescriptor> Modules;
	EPluginEnabledByDefault EnabledByDefault;
	bool bCanContainContent;
	bool bIsBetaVersion;
	bool bIsExperimentalVersion;
	bool bInstalled;
	bool bIsHidden;
	bool bExplicitlyLoaded;

	FPluginDescriptor();

	bool Load(const FString& FileName, FText& OutFailReason);
	bool Read(const FString& Text, FText& OutFailReason);
	bool Save(const FString& FileName, FText& OutFailReason) const;
	void Write(FString& Text) const;
};
