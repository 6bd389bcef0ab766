#pragma once

#include "CoreMinimal.h"
#include "Widgets/SWindow.h"
#include "Rendering/SlateRenderer.h"
#include "Application/SlateApplicationBase.h"

class SLATE_API FSlateApplication : public FSlateApplicationBase
{
public:
	// Whether the editor has brought Slate up; a program without a user interface has not.
	static bool IsInitialized();
	static FSlateApplication& Get();

	// A top-level window without a parent; it is not modal.
	TSharedRef<SWindow> AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately = true);
};
