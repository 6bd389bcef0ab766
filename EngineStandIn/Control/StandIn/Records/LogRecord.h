#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"

namespace StandIn
{
	// A line written to any log category.
	class FLogRecord : public FJournalRecord
	{
	public:
		FLogRecord(FString InCategory, ELogVerbosity::Type InVerbosity, FString InMessage)
			: Category(std::move(InCategory)), Verbosity(InVerbosity), Message(std::move(InMessage)) {}

		// As the Output Log shows it: "LogTemp: Warning: text", and "LogTemp: text" at Log verbosity.
		std::string Describe() const override;

		FString Category;
		ELogVerbosity::Type Verbosity;
		FString Message;
	};
}
