#include "StandInPackages.h"
#include <memory>

void UObjectBase::LowLevelRename(FName NewName, UObject* NewOuter)
{
	NamePrivate = NewName;
}

namespace
{
	// A package as loading one makes it: named, and otherwise as the class leaves it.
	class FStandInPackage final : public UPackage
	{
	public:
		explicit FStandInPackage(const FString& LongPackageName)
		{
			LowLevelRename(FName(*LongPackageName));
		}
	};

	struct FPackages
	{
		std::vector<std::unique_ptr<UPackage>> Owned;
		std::vector<StandInPackages::FLoadedPackage> Loaded;
	};

	FPackages& Packages()
	{
		static FPackages Instance;
		return Instance;
	}
}

namespace StandInPackages
{
	void Reset(const std::vector<StandIn::FDirtyPackage>& DirtyPackages)
	{
		FPackages& State = Packages();
		State.Loaded.clear();
		State.Owned.clear();
		for (const StandIn::FDirtyPackage& Dirty : DirtyPackages)
		{
			State.Owned.push_back(std::make_unique<FStandInPackage>(Dirty.LongPackageName));
			State.Owned.back()->SetDirtyFlag(true);
			State.Loaded.push_back(FLoadedPackage{State.Owned.back().get(), Dirty.bIsMap});
		}
	}

	const std::vector<FLoadedPackage>& LoadedPackages()
	{
		return Packages().Loaded;
	}
}
