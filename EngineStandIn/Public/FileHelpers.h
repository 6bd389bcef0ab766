#pragma once

#include "CoreMinimal.h"

class UPackage;

// The editor's saving of packages. As in the engine, the class is not exported, its members are.
class FEditorFileUtils
{
public:
	/**
	 * Saves the dirty packages of the kinds asked for; with bPromptUserToSave, the user first chooses in a
	 * dialog that lists them all ("Don't Save" is offered when bCanBeDeclined). False only when the user
	 * cancels or a save fails.
	 */
	UNREALED_API static bool SaveDirtyPackages(const bool bPromptUserToSave, const bool bSaveMapPackages, const bool bSaveContentPackages, const bool bFastSave = false, const bool bNotifyNoPackagesSaved = false, const bool bCanBeDeclined = true, bool* bOutPackagesNeededSaving = NULL);

	// Both append: world packages are the maps, content packages everything else.
	UNREALED_API static void GetDirtyWorldPackages(TArray<UPackage*>& OutDirtyPackages);
	UNREALED_API static void GetDirtyContentPackages(TArray<UPackage*>& OutDirtyPackages);
};
