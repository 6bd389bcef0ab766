// Copyright UGCEditor contributors. All Rights Reserved.

#include "CoreMinimal.h"
#include "Misc/AutomationTest.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "UGCEditorCommands.h"

#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Internationalization/Text.h"
#include "Textures/SlateIcon.h"

// Texts are compared as TCHAR strings: that form of TestEqual minds letter case, the FString one does not.
BEGIN_DEFINE_SPEC(FUGCEditorCommandsSpec, TEXT("UGCEditor.Commands"), EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)
/** Set when the module had not registered the set, so that the spec leaves the editor as it found it. */
bool bRegisteredBySpec = false;
END_DEFINE_SPEC(FUGCEditorCommandsSpec)

void FUGCEditorCommandsSpec::Define()
{
	BeforeEach([this]() {
		bRegisteredBySpec = !FUGCEditorCommands::IsRegistered();
		if (bRegisteredBySpec)
		{
			FUGCEditorCommands::Register();
		}
	});

	AfterEach([this]() {
		if (bRegisteredBySpec)
		{
			FUGCEditorCommands::Unregister();
		}
	});

	Describe(TEXT("the binding context"), [this]() {
		It(TEXT("should be called UGCEditor and read Moravane Plugin"), [this]() {
			TestEqual(TEXT("context name"), *FUGCEditorCommands::Get().GetContextName().ToString(), TEXT("UGCEditor"));
			TestEqual(TEXT("context description"), *FUGCEditorCommands::Get().GetContextDesc().ToString(), TEXT("Moravane Plugin"));
			TestTrue(TEXT("the context has no parent"), FUGCEditorCommands::Get().GetContextParent() == NAME_None);
			TestEqual(TEXT("description's namespace"), *FTextInspector::GetNamespace(FUGCEditorCommands::Get().GetContextDesc()).Get(FString()), TEXT("Contexts"));
			TestEqual(TEXT("description's key"), *FTextInspector::GetKey(FUGCEditorCommands::Get().GetContextDesc()).Get(FString()), TEXT("UGCEditor"));
		});

		It(TEXT("should take its icons from the style set UGCEditorStyle"), [this]() {
			TestEqual(TEXT("style set name"), *FUGCEditorCommands::Get().GetStyleSetName().ToString(), TEXT("UGCEditorStyle"));
		});

		It(TEXT("should be the one the input binding manager knows as UGCEditor"), [this]() {
			const TSharedPtr<FBindingContext> Context = FInputBindingManager::Get().GetContextByName(TEXT("UGCEditor"));
			TestTrue(TEXT("the binding manager's context is the command set"), Context.Get() == &FUGCEditorCommands::Get());
		});
	});

	struct FExpectedCommand
	{
		TSharedPtr<FUICommandInfo> FUGCEditorCommands::*Member;
		const TCHAR* Label;
		const TCHAR* Tooltip;
		const TCHAR* IconStyleName;
	};
	const FExpectedCommand ExpectedCommands[] = {
		{&FUGCEditorCommands::CreateUGCAction, TEXT("Create Mod"), TEXT("Create a new DLC package as a content plugin"), TEXT("UGCEditor.CreateUGCAction")},
		{&FUGCEditorCommands::PackageUGCAction, TEXT("Package Mod"), TEXT("Share and distribute your DLC"), TEXT("UGCEditor.PackageUGCAction")},
		{&FUGCEditorCommands::PakingUGCAction, TEXT("Distribute"), TEXT("Generating important files and paking your DLC"), TEXT("UGCEditor.PakingUGCAction")},
	};
	for (const FExpectedCommand& Expected : ExpectedCommands)
	{
		Describe(Expected.Label, [this, Expected]() {
			It(FString::Printf(TEXT("should be labelled %s"), Expected.Label), [this, Expected]() {
				TestEqual(TEXT("label"), *(FUGCEditorCommands::Get().*Expected.Member)->GetLabel().ToString(), Expected.Label);
			});

			It(FString::Printf(TEXT("should read \"%s\" as its tooltip"), Expected.Tooltip), [this, Expected]() {
				TestEqual(TEXT("tooltip"), *(FUGCEditorCommands::Get().*Expected.Member)->GetDescription().ToString(), Expected.Tooltip);
			});

			It(TEXT("should show its icon from the module's style set"), [this, Expected]() {
				const FSlateIcon& Icon = (FUGCEditorCommands::Get().*Expected.Member)->GetIcon();
				TestEqual(TEXT("icon style set"), *Icon.GetStyleSetName().ToString(), TEXT("UGCEditorStyle"));
				TestEqual(TEXT("icon style name"), *Icon.GetStyleName().ToString(), Expected.IconStyleName);
			});
		});
	}

	It(TEXT("should register each command under its own name as a button"), [this]() {
		const TSharedPtr<FUICommandInfo> Commands[] = {FUGCEditorCommands::Get().CreateUGCAction, FUGCEditorCommands::Get().PackageUGCAction, FUGCEditorCommands::Get().PakingUGCAction};
		const TCHAR* const Names[] = {TEXT("CreateUGCAction"), TEXT("PackageUGCAction"), TEXT("PakingUGCAction")};
		for (int32 Index = 0; Index < 3; ++Index)
		{
			TestTrue(*FString::Printf(TEXT("%s found in the context"), Names[Index]), FInputBindingManager::Get().FindCommandInContext(TEXT("UGCEditor"), Names[Index]) == Commands[Index]);
			TestTrue(*FString::Printf(TEXT("%s is a button"), Names[Index]), Commands[Index]->GetUserInterfaceType() == EUserInterfaceActionType::Button);
		}
	});

	It(TEXT("should keep each command's texts under the command's own localisation keys"), [this]() {
		const TSharedPtr<FUICommandInfo> Commands[] = {FUGCEditorCommands::Get().CreateUGCAction, FUGCEditorCommands::Get().PackageUGCAction, FUGCEditorCommands::Get().PakingUGCAction};
		for (const TSharedPtr<FUICommandInfo>& Command : Commands)
		{
			const FString Name = Command->GetCommandName().ToString();
			TestEqual(*(Name + TEXT(" label's namespace")), *FTextInspector::GetNamespace(Command->GetLabel()).Get(FString()), TEXT("UICommands.FUGCEditorModule"));
			TestEqual(*(Name + TEXT(" label's key")), *FTextInspector::GetKey(Command->GetLabel()).Get(FString()), *Name);
			TestEqual(*(Name + TEXT(" tooltip's namespace")), *FTextInspector::GetNamespace(Command->GetDescription()).Get(FString()), TEXT("UICommands.FUGCEditorModule"));
			TestEqual(*(Name + TEXT(" tooltip's key")), *FTextInspector::GetKey(Command->GetDescription()).Get(FString()), *(Name + TEXT("_ToolTip")));
		}
	});
}

#endif
