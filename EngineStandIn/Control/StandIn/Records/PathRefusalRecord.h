#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"

namespace StandIn
{
	// A file access refused because its path, or a link on it, leads outside the drive root. The editor
	// saw only a path that is not there.
	class FPathRefusalRecord : public FJournalRecord
	{
	public:
		explicit FPathRefusalRecord(FString InPath)
			: Path(std::move(InPath)) {}

		// "Refused outside the drive root: <path>"
		std::string Describe() const override;
		bool IsShownInEditor() const override { return false; }

		FString Path;
	};
}
