#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"
#include "StandIn/World.h"
#include <vector>

namespace StandIn
{
	// A call of FEditorFileUtils::SaveDirtyPackages: its flags, and the prompt it showed, if any, with the
	// packages it listed and the answer the world scripted.
	class FSavePromptRecord : public FJournalRecord
	{
	public:
		// "Save prompt: <package>, <package>, ... -> <answer>", or "Save without prompt: <packages>"
		std::string Describe() const override;
		// "Save prompt: <package>, <package>, ..." when the prompt was shown; nothing otherwise.
		std::string ShownLine() const override;

		bool bPromptUserToSave = false;
		bool bSaveMapPackages = false;
		bool bSaveContentPackages = false;
		bool bFastSave = false;
		bool bNotifyNoPackagesSaved = false;
		bool bCanBeDeclined = false;
		// Whether the caller asked to be told if anything needed saving.
		bool bOutPackagesNeededSavingGiven = false;

		// The dirty packages of the kinds asked for, world packages first, in the editor's order.
		std::vector<FString> PackageNames;
		bool bPromptShown = false;
		// Meaningful only when the prompt was shown.
		ESavePromptAnswer Answer = ESavePromptAnswer::SaveAll;
	};
}
