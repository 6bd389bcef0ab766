#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"

namespace StandIn
{
	// A toast in the editor's corner, or a change of one already shown (a new text and state).
	class FNotificationRecord : public FJournalRecord
	{
	public:
		enum class ECompletionState
		{
			None,
			Pending,
			Success,
			Fail
		};

		FNotificationRecord(FText InText, ECompletionState InState)
			: Text(std::move(InText)), State(InState) {}

		// "Notification: <text>"
		std::string Describe() const override;

		FText Text;
		ECompletionState State;
	};
}
