#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"
#include "Widgets/SWindow.h"

namespace StandIn
{
	// A window as it was handed to FSlateApplication::AddWindow, with the arguments it was built with.
	class FWindowRecord : public FJournalRecord
	{
	public:
		FWindowRecord(TSharedRef<SWindow> InWindow, FText InTitle, FVector2D InClientSize, bool bInSupportsMaximize, bool bInSupportsMinimize, bool bInShowImmediately, TSharedRef<SWidget> InContent)
			: Window(InWindow), Title(std::move(InTitle)), ClientSize(InClientSize), bSupportsMaximize(bInSupportsMaximize), bSupportsMinimize(bInSupportsMinimize), bShowImmediately(bInShowImmediately), Content(InContent) {}

		// "Window: <title> <width>x<height>"
		std::string Describe() const override;

		TSharedRef<SWindow> Window;
		FText Title;
		FVector2D ClientSize;
		bool bSupportsMaximize;
		bool bSupportsMinimize;
		bool bShowImmediately;
		TSharedRef<SWidget> Content;
	};
}
