// Copyright UGCEditor contributors. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class FSlateStyleSet;
class ISlateStyle;

/** The style set "UGCEditorStyle": the icons of the module's commands, read from the project's Resources folder. */
class FUGCEditorStyle
{
public:
	/** Makes and registers the style set; a second call does nothing. */
	static void Initialize();

	/** Unregisters and releases the style set. */
	static void Shutdown();

	/** Has the renderer load every texture again, so that changed icon files show. */
	static void ReloadTextures();

	static const ISlateStyle& Get();

	static FName GetStyleSetName();

private:
	static TSharedRef<FSlateStyleSet> Create();

	static TSharedPtr<FSlateStyleSet> StyleInstance;
};
