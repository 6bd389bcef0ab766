#pragma once

#include "CoreMinimal.h"
#include "Widgets/SWindow.h"

class SLATE_API FSlateApplication
{
public:
	static FSlateApplication& Get();

	// A top-level window without a parent; it is not modal.
	TSharedRef<SWindow> AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately = true);
};
