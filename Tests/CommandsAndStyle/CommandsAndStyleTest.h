#pragma once

#include "Framework/Commands/InputBindingManager.h"
#include "Interfaces/IPluginManager.h"
#include "SandboxTest.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "UGCEditorCommands.h"
#include "UGCEditorStyle.h"

// The command set and the style set are process-wide; each test leaves neither behind.
class FCommandsAndStyleTest : public FSandboxTest
{
protected:
	void TearDown() override
	{
		if (FUGCEditorCommands::IsRegistered())
		{
			FUGCEditorCommands::Unregister();
		}
		if (FSlateStyleRegistry::FindSlateStyle(FUGCEditorStyle::GetStyleSetName()) != nullptr)
		{
			FUGCEditorStyle::Shutdown();
		}
		FSandboxTest::TearDown();
	}
};

// A plugin as the plugin manager would hand it over.
class FTestPlugin : public IPlugin
{
public:
	FTestPlugin(const TCHAR* InName, const TCHAR* InBaseDir)
		: Name(InName), BaseDir(InBaseDir) {}

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
	FString DescriptorFileName = BaseDir / Name + TEXT(".uplugin");
	FPluginDescriptor Descriptor;
};

inline std::string Utf8(const FString& Text)
{
	return StandIn::ToUtf8(Text);
}

inline std::string Utf8(const FName& Name)
{
	return StandIn::ToUtf8(Name.ToString());
}

inline std::string Utf8(const TOptional<FString>& Text)
{
	return Text.IsSet() ? StandIn::ToUtf8(Text.GetValue()) : "<unset>";
}
