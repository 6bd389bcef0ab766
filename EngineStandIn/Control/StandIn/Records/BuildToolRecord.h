#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"

namespace StandIn
{
	// UnrealBuildTool run by the editor to compile a new plugin's code; it succeeds.
	class FBuildToolRecord : public FJournalRecord
	{
	public:
		FBuildToolRecord(FText InDescription, FString InArguments)
			: Description(std::move(InDescription)), Arguments(std::move(InArguments)) {}

		// "Build tool: <description> | <arguments>"
		std::string Describe() const override;
		// Not shown in the editor.
		std::string ShownLine() const override { return std::string(); }

		FText Description;
		FString Arguments;
	};
}
