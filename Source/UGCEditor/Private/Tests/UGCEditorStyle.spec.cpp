// Copyright UGCEditor contributors. All Rights Reserved.

#include "CoreMinimal.h"
#include "Misc/AutomationTest.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "UGCEditorCommands.h"
#include "UGCEditorStyle.h"

#include "Framework/Commands/UICommandInfo.h"
#include "Misc/Paths.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/StyleDefaults.h"
#include "Textures/SlateIcon.h"

BEGIN_DEFINE_SPEC(FUGCEditorStyleSpec, TEXT("UGCEditor.Style"), EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter)
/** Set when the module had not registered the style set, so that the spec leaves the editor as it found it. */
bool bInitializedBySpec = false;
bool bCommandsRegisteredBySpec = false;
END_DEFINE_SPEC(FUGCEditorStyleSpec)

void FUGCEditorStyleSpec::Define()
{
	BeforeEach([this]() {
		bInitializedBySpec = FSlateStyleRegistry::FindSlateStyle(FUGCEditorStyle::GetStyleSetName()) == nullptr;
		if (bInitializedBySpec)
		{
			FUGCEditorStyle::Initialize();
		}
		bCommandsRegisteredBySpec = !FUGCEditorCommands::IsRegistered();
		if (bCommandsRegisteredBySpec)
		{
			FUGCEditorCommands::Register();
		}
	});

	AfterEach([this]() {
		if (bCommandsRegisteredBySpec)
		{
			FUGCEditorCommands::Unregister();
		}
		if (bInitializedBySpec)
		{
			FUGCEditorStyle::Shutdown();
		}
	});

	It(TEXT("should be registered with Slate as UGCEditorStyle"), [this]() {
		TestEqual(TEXT("style set name"), *FUGCEditorStyle::GetStyleSetName().ToString(), TEXT("UGCEditorStyle"));
		TestTrue(TEXT("the registered style set is the module's"), FSlateStyleRegistry::FindSlateStyle(TEXT("UGCEditorStyle")) == &FUGCEditorStyle::Get());
	});

	struct FExpectedIcon
	{
		const TCHAR* Command;
		const TCHAR* StyleName;
		const TCHAR* ImageFile;
	};
	const FExpectedIcon ExpectedIcons[] = {
		{TEXT("Create Mod"), TEXT("UGCEditor.CreateUGCAction"), TEXT("CreateUGC_64x.png")},
		{TEXT("Package Mod"), TEXT("UGCEditor.PackageUGCAction"), TEXT("PackageUGC_64x.png")},
		{TEXT("Distribute"), TEXT("UGCEditor.PakingUGCAction"), TEXT("DistributeUGC_64x.png")},
	};
	for (const FExpectedIcon& Expected : ExpectedIcons)
	{
		Describe(FString::Printf(TEXT("the %s icon"), Expected.Command), [this, Expected]() {
			It(TEXT("should be drawn from its own image in the project's Resources folder"), [this, Expected]() {
				const FSlateBrush* Brush = FUGCEditorStyle::Get().GetOptionalBrush(Expected.StyleName, nullptr, nullptr);
				if (TestNotNull(TEXT("brush"), Brush))
				{
					TestEqual(TEXT("image file"), *Brush->GetResourceName().ToString(), *(FPaths::ProjectDir() / TEXT("Resources") / Expected.ImageFile));
				}
			});

			It(TEXT("should be drawn once at 40 by 40, in full colour and white"), [this, Expected]() {
				const FSlateBrush* Brush = FUGCEditorStyle::Get().GetOptionalBrush(Expected.StyleName, nullptr, nullptr);
				if (TestNotNull(TEXT("brush"), Brush))
				{
					TestEqual(TEXT("image size"), Brush->GetImageSize(), FVector2D(40.0f, 40.0f));
					TestEqual(TEXT("tint"), Brush->TintColor.GetSpecifiedColor(), FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
					TestTrue(TEXT("drawn as an image"), Brush->GetDrawType() == ESlateBrushDrawType::Image);
					TestTrue(TEXT("not tiled"), Brush->GetTiling() == ESlateBrushTileType::NoTile);
					TestTrue(TEXT("in full colour"), Brush->GetImageType() == ESlateBrushImageType::FullColor);
				}
			});
		});
	}

	It(TEXT("should be what the commands' icons draw"), [this]() {
		TestTrue(TEXT("Create Mod draws the style's brush"), FUGCEditorCommands::Get().CreateUGCAction->GetIcon().GetIcon() == FUGCEditorStyle::Get().GetBrush(TEXT("UGCEditor.CreateUGCAction")));
		TestTrue(TEXT("Package Mod draws the style's brush"), FUGCEditorCommands::Get().PackageUGCAction->GetIcon().GetIcon() == FUGCEditorStyle::Get().GetBrush(TEXT("UGCEditor.PackageUGCAction")));
		TestTrue(TEXT("Distribute draws the style's brush"), FUGCEditorCommands::Get().PakingUGCAction->GetIcon().GetIcon() == FUGCEditorStyle::Get().GetBrush(TEXT("UGCEditor.PakingUGCAction")));
	});

	It(TEXT("should have no brush for the folder icon, so the cook menus' plugin entries draw nothing"), [this]() {
		TestNull(TEXT("optional brush"), FUGCEditorStyle::Get().GetOptionalBrush(TEXT("UGCEditor.Folder"), nullptr, nullptr));
		TestTrue(TEXT("the icon resolves to no brush"), FSlateIcon(FUGCEditorStyle::GetStyleSetName(), TEXT("UGCEditor.Folder")).GetIcon() == FStyleDefaults::GetNoBrush());
	});
}

#endif
