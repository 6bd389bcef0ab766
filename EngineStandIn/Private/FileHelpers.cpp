#include "FileHelpers.h"
#include "StandIn/Records/SavePromptRecord.h"
#include "StandIn/ShownText.h"
#include "StandIn/World.h"
#include "StandInPackages.h"
#include <cstdio>
#include <cstdlib>

namespace
{
	void AppendDirtyPackages(bool bMaps, TArray<UPackage*>& OutDirtyPackages)
	{
		for (const StandInPackages::FLoadedPackage& Loaded : StandInPackages::LoadedPackages())
		{
			if (Loaded.bIsMap == bMaps && Loaded.Package->IsDirty())
			{
				OutDirtyPackages.Add(Loaded.Package);
			}
		}
	}

	const char* AnswerName(StandIn::ESavePromptAnswer Answer)
	{
		switch (Answer)
		{
		case StandIn::ESavePromptAnswer::SaveAll:
			return "Save Selected";
		case StandIn::ESavePromptAnswer::DontSave:
			return "Don't Save";
		case StandIn::ESavePromptAnswer::Cancel:
			return "Cancel";
		}
		return "?";
	}
}

void FEditorFileUtils::GetDirtyWorldPackages(TArray<UPackage*>& OutDirtyPackages)
{
	AppendDirtyPackages(true, OutDirtyPackages);
}

void FEditorFileUtils::GetDirtyContentPackages(TArray<UPackage*>& OutDirtyPackages)
{
	AppendDirtyPackages(false, OutDirtyPackages);
}

bool FEditorFileUtils::SaveDirtyPackages(const bool bPromptUserToSave, const bool bSaveMapPackages, const bool bSaveContentPackages, const bool bFastSave, const bool bNotifyNoPackagesSaved, const bool bCanBeDeclined, bool* bOutPackagesNeededSaving)
{
	// As the engine's: the maps first, then the rest.
	TArray<UPackage*> PackagesToSave;
	if (bSaveMapPackages)
	{
		GetDirtyWorldPackages(PackagesToSave);
	}
	if (bSaveContentPackages)
	{
		GetDirtyContentPackages(PackagesToSave);
	}

	auto Record = std::make_shared<StandIn::FSavePromptRecord>();
	Record->bPromptUserToSave = bPromptUserToSave;
	Record->bSaveMapPackages = bSaveMapPackages;
	Record->bSaveContentPackages = bSaveContentPackages;
	Record->bFastSave = bFastSave;
	Record->bNotifyNoPackagesSaved = bNotifyNoPackagesSaved;
	Record->bCanBeDeclined = bCanBeDeclined;
	Record->bOutPackagesNeededSavingGiven = bOutPackagesNeededSaving != nullptr;
	for (const UPackage* Package : PackagesToSave)
	{
		Record->PackageNames.push_back(Package->GetFName().ToString());
	}

	if (bOutPackagesNeededSaving != nullptr)
	{
		*bOutPackagesNeededSaving = PackagesToSave.Num() > 0;
	}

	// Without a prompt, or with a fast save, everything is saved as it is. The stand-in's saves never fail.
	bool bSaveAll = true;
	bool bReturnCode = true;
	if (PackagesToSave.Num() > 0 && bPromptUserToSave && !bFastSave)
	{
		const StandIn::ESavePromptAnswer Answer = StandIn::GetWorld().SavePromptAnswer;
		if (Answer == StandIn::ESavePromptAnswer::DontSave && !bCanBeDeclined)
		{
			std::fprintf(stderr, "Stand-in save prompt: the world answers \"Don't Save\", which this prompt does not offer\n");
			std::abort();
		}
		Record->bPromptShown = true;
		Record->Answer = Answer;
		bSaveAll = Answer == StandIn::ESavePromptAnswer::SaveAll;
		// Declining is an answer, not a failure; only cancelling stops what the caller was doing.
		bReturnCode = Answer != StandIn::ESavePromptAnswer::Cancel;
	}
	StandIn::AppendToJournal(Record);
	if (Record->bPromptShown)
	{
		// The prompt is modal: the editor waits for the person's answer.
		StandIn::AnnounceWait();
	}

	if (bSaveAll)
	{
		for (UPackage* Package : PackagesToSave)
		{
			Package->SetDirtyFlag(false);
		}
	}
	return bReturnCode;
}

namespace StandIn
{
	std::string FSavePromptRecord::Describe() const
	{
		std::string Names;
		for (const FString& Name : PackageNames)
		{
			Names += (Names.empty() ? "" : ", ") + ToUtf8(Name);
		}
		if (bPromptShown)
		{
			return "Save prompt: " + Names + " -> " + AnswerName(Answer);
		}
		return "Save without prompt: " + (Names.empty() ? std::string("nothing to save") : Names);
	}

	std::string FSavePromptRecord::ShownLine() const
	{
		if (!bPromptShown)
		{
			return std::string();
		}
		std::string Line = "Save prompt: ";
		for (size_t Index = 0; Index < PackageNames.size(); ++Index)
		{
			Line += (Index == 0 ? "" : ", ") + ShownValue(ToUtf8(PackageNames[Index]));
		}
		return Line;
	}
}
