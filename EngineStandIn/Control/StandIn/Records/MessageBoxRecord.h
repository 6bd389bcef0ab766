#pragma once

#include "CoreMinimal.h"
#include "Misc/MessageDialog.h"
#include "StandIn/Journal.h"

namespace StandIn
{
	// A modal message box, answered at once: Ok for an OK box, the default answer otherwise.
	class FMessageBoxRecord : public FJournalRecord
	{
	public:
		FMessageBoxRecord(EAppMsgType::Type InType, FText InMessage, FText InTitle = FText())
			: Type(InType), Message(std::move(InMessage)), Title(std::move(InTitle)) {}

		// "Message: <text>"
		std::string Describe() const override;

		EAppMsgType::Type Type;
		FText Message;
		// Empty when the box has the default title.
		FText Title;
	};
}
