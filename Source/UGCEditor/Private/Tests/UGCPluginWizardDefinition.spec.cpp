// Copyright UGCEditor contributors. All Rights Reserved.

#include "CoreMinimal.h"
#include "Misc/AutomationTest.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "UGCPluginWizardDefinition.h"

#include "GenericPlatform/GenericPlatformFile.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "PluginDescriptor.h"

// A definition of its own for each case: it only reads the project's Templates and Resources folders. The
// plugin it is told was created lies in a folder of the spec's own below the project's Intermediate folder.
BEGIN_DEFINE_SPEC(FUGCPluginWizardDefinitionSpec, TEXT("UGCEditor.WizardDefinition"), EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)
TSharedPtr<FUGCPluginWizardDefinition> Definition;

/** Picks the listed templates in the order given, as the wizard's list reports a selection. */
void PickTemplates(const TArray<FString>& DisplayNames)
{
	TArray<TSharedRef<FPluginTemplateDescription>> Picked;
	for (const FString& DisplayName : DisplayNames)
	{
		for (const TSharedRef<FPluginTemplateDescription>& Template : Definition->GetTemplatesSource())
		{
			if (Template->Name.ToString().Equals(DisplayName, ESearchCase::CaseSensitive))
			{
				Picked.Add(Template);
			}
		}
	}
	Definition->OnTemplateSelectionChanged(Picked, ESelectInfo::OnMouseClick);
}

/** The stand-in for a plugin the wizard has just made, and whether a plugin of its name was known before. */
const TCHAR* const CreatedPluginName = TEXT("UGCEditorSpecCreatedMod");
FString SpecFolder;
FString CreatedDescriptorFile;
bool bNameWasTaken = false;

FString CreatedPluginCategory() const
{
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(CreatedPluginName);
	return Plugin.IsValid() ? Plugin->GetDescriptor().Category : FString();
}

static FString TemplateFolder(const TCHAR* FolderName)
{
	return FPaths::ProjectDir() / TEXT("Templates") / FolderName;
}
END_DEFINE_SPEC(FUGCPluginWizardDefinitionSpec)

void FUGCPluginWizardDefinitionSpec::Define()
{
	BeforeEach([this]() {
		Definition = MakeShared<FUGCPluginWizardDefinition>();
	});

	AfterEach([this]() {
		Definition.Reset();
	});

	It(TEXT("should list Route, Scenario, ServiceMode and Blank in that order"), [this]() {
		TArray<FString> Listed;
		for (const TSharedRef<FPluginTemplateDescription>& Template : Definition->GetTemplatesSource())
		{
			Listed.Add(Template->Name.ToString());
		}
		TestEqual(TEXT("templates listed"), *FString::Join(Listed, TEXT(", ")), TEXT("Route, Scenario, ServiceMode, Blank"));
	});

	It(TEXT("should let the modder pick several templates"), [this]() {
		TestTrue(TEXT("selection mode is Multi"), Definition->GetSelectionMode() == ESelectionMode::Multi);
	});

	It(TEXT("should tell the modder how to make a content only DLC package"), [this]() {
		TestEqual(TEXT("instructions"), *Definition->GetInstructions().ToString(), TEXT("Give your new DLC package a name and Click 'Create Mod' to make a new content only DLC package."));
	});

	Describe(TEXT("with nothing picked"), [this]() {
		It(TEXT("should still be ready to create, from the base template alone"), [this]() {
			TestTrue(TEXT("selection is valid"), Definition->HasValidTemplateSelection());
			TestEqual(TEXT("folders copied"), *FString::Join(Definition->GetFoldersForSelection(), TEXT(" | ")), *TemplateFolder(TEXT("BaseTemplate")));
		});

		It(TEXT("should make a content plugin without code"), [this]() {
			TestTrue(TEXT("can contain content"), Definition->CanContainContent());
			TestFalse(TEXT("has modules"), Definition->HasModules());
		});
	});

	Describe(TEXT("with templates picked"), [this]() {
		It(TEXT("should copy them after the base template in the order they were picked"), [this]() {
			PickTemplates({TEXT("Scenario"), TEXT("Route")});

			const FString Expected = TemplateFolder(TEXT("BaseTemplate")) + TEXT(" | ") + TemplateFolder(TEXT("Scenario")) + TEXT(" | ") + TemplateFolder(TEXT("Route"));
			TestEqual(TEXT("folders copied"), *FString::Join(Definition->GetFoldersForSelection(), TEXT(" | ")), *Expected);
		});

		It(TEXT("should copy ServiceMode from the folder Service Mode"), [this]() {
			PickTemplates({TEXT("ServiceMode")});

			const FString Expected = TemplateFolder(TEXT("BaseTemplate")) + TEXT(" | ") + TemplateFolder(TEXT("Service Mode"));
			TestEqual(TEXT("folders copied"), *FString::Join(Definition->GetFoldersForSelection(), TEXT(" | ")), *Expected);
		});

		It(TEXT("should forget them when the wizard clears its selection"), [this]() {
			PickTemplates({TEXT("Route")});
			Definition->ClearTemplateSelection();

			TestEqual(TEXT("templates selected"), Definition->GetSelectedTemplates().Num(), 0);
			TestEqual(TEXT("folders copied"), *FString::Join(Definition->GetFoldersForSelection(), TEXT(" | ")), *TemplateFolder(TEXT("BaseTemplate")));
		});
	});

	Describe(TEXT("once the wizard has made a plugin"), [this]() {
		BeforeEach([this]() {
			SpecFolder = FPaths::ConvertRelativePathToFull(FPaths::ProjectIntermediateDir() / TEXT("UGCEditorSpecs"));
			CreatedDescriptorFile = SpecFolder / CreatedPluginName / FString(CreatedPluginName) + TEXT(".uplugin");
			// A plugin of the user's that bears the name is never touched.
			bNameWasTaken = IPluginManager::Get().FindPlugin(CreatedPluginName).IsValid();
			if (bNameWasTaken)
			{
				AddError(FString::Printf(TEXT("A plugin named %s is known already; the spec leaves it alone."), CreatedPluginName));
				return;
			}
			const FString WizardDescriptor = TEXT("{ \"FileVersion\": 3, \"Version\": 1, \"VersionName\": \"1.0\", \"FriendlyName\": \"UGCEditorSpecCreatedMod\", \"Category\": \"Other\", \"CanContainContent\": true }");
			TestTrue(TEXT("descriptor written"), FFileHelper::SaveStringToFile(WizardDescriptor, *CreatedDescriptorFile));
			TestTrue(TEXT("plugin known to the editor"), IPluginManager::Get().AddToPluginsList(CreatedDescriptorFile));
		});

		AfterEach([this]() {
			IPlatformFile::GetPlatformPhysical().DeleteDirectoryRecursively(*SpecFolder);
			if (!bNameWasTaken)
			{
				// The editor forgets a plugin that is neither enabled nor on disk any more when it reads its plugin folders again.
				IPluginManager::Get().RefreshPluginsList();
			}
		});

		It(TEXT("should file it under the DLC category, in the editor and in its descriptor"), [this]() {
			Definition->PluginCreated(CreatedPluginName, true);

			TestEqual(TEXT("category the editor keeps"), *CreatedPluginCategory(), TEXT("DLC"));
			FPluginDescriptor OnDisk;
			FText FailReason;
			TestTrue(TEXT("descriptor read back"), OnDisk.Load(CreatedDescriptorFile, FailReason));
			TestEqual(TEXT("category on disk"), *OnDisk.Category, TEXT("DLC"));
		});

		It(TEXT("should leave it as the wizard wrote it when the creation failed"), [this]() {
			Definition->PluginCreated(CreatedPluginName, false);

			TestEqual(TEXT("category the editor keeps"), *CreatedPluginCategory(), TEXT("Other"));
		});
	});

	It(TEXT("should create project plugins, neither engine plugins nor mods"), [this]() {
		TestFalse(TEXT("allows engine plugins"), Definition->AllowsEnginePlugins());
		TestFalse(TEXT("is a mod"), Definition->IsMod());
		TestEqual(TEXT("plugin folder"), *Definition->GetPluginFolderPath(), *TemplateFolder(TEXT("BaseTemplate")));
	});

	It(TEXT("should give the new plugin the base template's icon"), [this]() {
		FString IconPath;
		TestFalse(TEXT("returned"), Definition->GetPluginIconPath(IconPath));
		TestEqual(TEXT("plugin icon"), *IconPath, *(TemplateFolder(TEXT("BaseTemplate")) / TEXT("Resources/Icon128.png")));
	});

	It(TEXT("should show every template with the project's icon"), [this]() {
		for (const TSharedRef<FPluginTemplateDescription>& Template : Definition->GetTemplatesSource())
		{
			FString IconPath;
			TestFalse(*(Template->Name.ToString() + TEXT(" returned")), Definition->GetTemplateIconPath(Template, IconPath));
			TestEqual(*(Template->Name.ToString() + TEXT(" icon")), *IconPath, *(FPaths::ProjectDir() / TEXT("Resources/Icon128.png")));
		}
	});
}

#endif
