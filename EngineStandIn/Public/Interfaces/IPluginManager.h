#pragma once

#include "CoreMinimal.h"
#include "PluginDescriptor.h"

enum class EPluginLoadedFrom
{
	Engine,
	Project
};

enum class EPluginType
{
	Engine,
	Enterprise,
	Project,
	// Found in a folder that the project file lists under AdditionalPluginDirectories.
	External,
	Mod,
};

// A plugin as the plugin manager knows it.
class IPlugin
{
public:
	virtual ~IPlugin() {}

	virtual const FString& GetName() const = 0;
	// The descriptor's path as it was found, in the form of the folder it was found in.
	virtual const FString& GetDescriptorFileName() const = 0;
	// The descriptor's folder, without a trailing slash.
	virtual FString GetBaseDir() const = 0;
	virtual FString GetContentDir() const = 0;
	// "/<Name>/"
	virtual FString GetMountedAssetPath() const = 0;
	virtual EPluginType GetType() const = 0;
	virtual bool IsEnabled() const = 0;
	virtual bool CanContainContent() const = 0;
	virtual EPluginLoadedFrom GetLoadedFrom() const = 0;
	virtual const FPluginDescriptor& GetDescriptor() const = 0;
	// Writes the .uplugin file, then keeps the new descriptor.
	virtual bool UpdateDescriptor(const FPluginDescriptor& NewDescriptor, FText& OutFailReason) = 0;
};

// Every plugin found at start-up, enabled or not.
class IPluginManager
{
public:
	virtual ~IPluginManager() {}

	// Reads every plugin folder again; enabled plugins stay as they are, new ones are added.
	virtual void RefreshPluginsList() = 0;
	// Reads one plugin from its descriptor, not enabled; true too when a plugin of that name is known already.
	virtual bool AddToPluginsList(const FString& PluginFilename) = 0;
	// Null for a name it does not know.
	virtual TSharedPtr<IPlugin> FindPlugin(const FString& Name) = 0;
	virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() = 0;
	// Enables a plugin found since start-up and mounts its content.
	virtual void MountNewlyCreatedPlugin(const FString& PluginName) = 0;

	static PROJECTS_API IPluginManager& Get();
};
