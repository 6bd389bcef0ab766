#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"

namespace StandIn
{
	// A SetFileAttributesW call.
	class FFileAttributesRecord : public FJournalRecord
	{
	public:
		FFileAttributesRecord(FString InPath, uint32 InAttributes)
			: Path(std::move(InPath)), Attributes(InAttributes) {}

		// "SetFileAttributesW: <path> 0x<attributes>"
		std::string Describe() const override;
		// Not shown in the editor.
		std::string ShownLine() const override { return std::string(); }

		FString Path;
		uint32 Attributes;
	};
}
