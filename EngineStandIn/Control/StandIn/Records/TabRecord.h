#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"
#include "Widgets/Docking/SDockTab.h"

namespace StandIn
{
	// The global tab manager spawned a nomad tab into a new floating window, brought an open one to the
	// front, or a tab closed.
	class FTabRecord : public FJournalRecord
	{
	public:
		enum class EKind
		{
			Spawned,
			BroughtToFront,
			Closed
		};

		FTabRecord(EKind InKind, TSharedRef<SDockTab> InTab, FText InDisplayName, FString InTabId, FVector2D InWindowSize)
			: Kind(InKind), Tab(InTab), DisplayName(std::move(InDisplayName)), TabId(std::move(InTabId)), WindowSize(InWindowSize) {}

		// "Tab: <display name> (<tab id>) <width>x<height>", "Tab to front: <display name> (<tab id>)",
		// "Tab closed: <display name> (<tab id>)"
		std::string Describe() const override;
		// A person sees the tab's window open: "Tab: <display name> (<tab id>) <width>x<height>" for a
		// spawned tab, nothing otherwise.
		std::string ShownLine() const override;

		EKind Kind;
		TSharedRef<SDockTab> Tab;
		FText DisplayName;
		FString TabId;
		FVector2D WindowSize;
	};
}
