// Copyright UGCEditor contributors. All Rights Reserved.

#include "UGCEditorStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Misc/Paths.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

TSharedPtr<FSlateStyleSet> FUGCEditorStyle::StyleInstance;

void FUGCEditorStyle::Initialize()
{
	if (!StyleInstance.IsValid())
	{
		StyleInstance = Create();
		FSlateStyleRegistry::RegisterSlateStyle(*StyleInstance);
	}
}

void FUGCEditorStyle::Shutdown()
{
	FSlateStyleRegistry::UnRegisterSlateStyle(*StyleInstance);
	ensure(StyleInstance.IsUnique());
	StyleInstance.Reset();
}

void FUGCEditorStyle::ReloadTextures()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().GetRenderer()->ReloadTextureResources();
	}
}

const ISlateStyle& FUGCEditorStyle::Get()
{
	return *StyleInstance;
}

FName FUGCEditorStyle::GetStyleSetName()
{
	static const FName StyleSetName(TEXT("UGCEditorStyle"));
	return StyleSetName;
}

TSharedRef<FSlateStyleSet> FUGCEditorStyle::Create()
{
	TSharedRef<FSlateStyleSet> Style = MakeShareable(new FSlateStyleSet(GetStyleSetName()));
	Style->SetContentRoot(FPaths::ProjectDir() / TEXT("Resources"));

	// The pictures are drawn at 64 pixels and shown at 40 units, the size of the level editor's buttons.
	const FVector2D IconSize(40.0f, 40.0f);
	Style->Set("UGCEditor.PackageUGCAction", new FSlateImageBrush(Style->RootToContentDir(TEXT("PackageUGC_64x"), TEXT(".png")), IconSize));
	Style->Set("UGCEditor.CreateUGCAction", new FSlateImageBrush(Style->RootToContentDir(TEXT("CreateUGC_64x"), TEXT(".png")), IconSize));
	Style->Set("UGCEditor.PakingUGCAction", new FSlateImageBrush(Style->RootToContentDir(TEXT("DistributeUGC_64x"), TEXT(".png")), IconSize));

	return Style;
}
