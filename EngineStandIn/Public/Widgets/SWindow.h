#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericWindow.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

namespace StandIn
{
	class FWindowInspector;
}

// A top-level window. It shows nothing until it is handed to FSlateApplication::AddWindow.
class SLATECORE_API SWindow : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SWindow)
		: _Title(), _ClientSize(FVector2D(0.0f, 0.0f)), _SupportsMaximize(true), _SupportsMinimize(true) {}
		SLATE_ATTRIBUTE(FText, Title)
		SLATE_ARGUMENT(FVector2D, ClientSize)
		SLATE_ARGUMENT(bool, SupportsMaximize)
		SLATE_ARGUMENT(bool, SupportsMinimize)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);
	void SetContent(TSharedRef<SWidget> InContent);

	// The operating system's window under this one; null until the window is shown.
	TSharedPtr<FGenericWindow> GetNativeWindow();
	TSharedPtr<const FGenericWindow> GetNativeWindow() const;
	// Given once, when the window is shown.
	void SetNativeWindow(TSharedRef<FGenericWindow> InNativeWindow);

private:
	friend class StandIn::FWindowInspector;

	TAttribute<FText> Title;
	FVector2D InitialDesiredSize;
	bool bHasMaximizeButton = true;
	bool bHasMinimizeButton = true;
	TSharedPtr<FGenericWindow> NativeWindow;
};
