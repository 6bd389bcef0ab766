#pragma once

#include "CoreMinimal.h"
#include "Interfaces/IPluginManager.h"
#include "PluginDescriptor.h"

// A plugin as the plugin manager would hand it over.
class FTestPlugin : public IPlugin
{
public:
	FTestPlugin(const TCHAR* InName, const TCHAR* InBaseDir)
		: Name(InName), BaseDir(InBaseDir), DescriptorFileName(BaseDir / Name + TEXT(".uplugin")) {}
	// A descriptor whose base name differs from the name the plugin is listed under, which the editor's
	// own plugin manager never makes.
	FTestPlugin(const TCHAR* InName, const TCHAR* InBaseDir, const TCHAR* InDescriptorFileName)
		: Name(InName), BaseDir(InBaseDir), DescriptorFileName(InDescriptorFileName) {}

	virtual const FString& GetName() const override { return Name; }
	virtual const FString& GetDescriptorFileName() const override { return DescriptorFileName; }
	virtual FString GetBaseDir() const override { return BaseDir; }
	virtual FString GetContentDir() const override { return BaseDir / TEXT("Content"); }
	virtual FString GetMountedAssetPath() const override { return TEXT("/") + Name + TEXT("/"); }
	virtual EPluginType GetType() const override { return EPluginType::Project; }
	virtual bool IsEnabled() const override { return true; }
	virtual bool CanContainContent() const override { return true; }
	virtual EPluginLoadedFrom GetLoadedFrom() const override { return EPluginLoadedFrom::Project; }
	virtual const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }
	virtual bool UpdateDescriptor(const FPluginDescriptor& NewDescriptor, FText& OutFailReason) override { return false; }

private:
	FString Name;
	FString BaseDir;
	FString DescriptorFileName;
	FPluginDescriptor Descriptor;
};
