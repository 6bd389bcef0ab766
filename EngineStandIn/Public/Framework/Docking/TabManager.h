#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Widgets/SWindow.h"

class SDockTab;

namespace StandIn
{
	class FTabManagerAccess;
}

struct FTabId
{
	FTabId()
		: TabType(NAME_None), InstanceId(INDEX_NONE) {}
	FTabId(const FName& InTabType, const int32 InInstanceId)
		: TabType(InTabType), InstanceId(InInstanceId) {}
	FTabId(const FName& InTabType)
		: TabType(InTabType), InstanceId(INDEX_NONE) {}

	// No instance number matches any instance.
	bool operator==(const FTabId& Other) const
	{
		return TabType == Other.TabType && (InstanceId == INDEX_NONE || Other.InstanceId == INDEX_NONE || InstanceId == Other.InstanceId);
	}

	FName TabType;
	int32 InstanceId;
};

class FSpawnTabArgs
{
public:
	FSpawnTabArgs(const TSharedPtr<SWindow>& InOwnerWindow, const FTabId& InTabBeingSpawenedId)
		: TabIdBeingSpawned(InTabBeingSpawenedId), OwnerWindow(InOwnerWindow)
	{
	}

	const TSharedPtr<SWindow>& GetOwnerWindow() const { return OwnerWindow; }
	const FTabId& GetTabId() const { return TabIdBeingSpawned; }

private:
	FTabId TabIdBeingSpawned;
	TSharedPtr<SWindow> OwnerWindow;
};

DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SDockTab>, FOnSpawnTab, const FSpawnTabArgs&);
DECLARE_DELEGATE_RetVal_OneParam(bool, FCanSpawnTab, const FSpawnTabArgs&);

namespace ETabSpawnerMenuType
{
	enum Type
	{
		Enabled,
		Disabled,
		// Listed in no window menu.
		Hidden
	};
}

class SLATE_API FTabSpawnerEntry
{
public:
	FTabSpawnerEntry(const FName& InTabType, const FOnSpawnTab& InSpawnTabMethod, const FCanSpawnTab& InCanSpawnTab)
		: TabType(InTabType), OnSpawnTab(InSpawnTabMethod), CanSpawnTab(InCanSpawnTab), MenuType(ETabSpawnerMenuType::Enabled)
	{
	}

	FTabSpawnerEntry& SetDisplayName(const FText& InLegibleName)
	{
		DisplayName = InLegibleName;
		return *this;
	}
	FTabSpawnerEntry& SetMenuType(const TAttribute<ETabSpawnerMenuType::Type>& InMenuType)
	{
		MenuType = InMenuType;
		return *this;
	}

	const FText& GetDisplayName() const { return DisplayName; }

private:
	friend class StandIn::FTabManagerAccess;

	FName TabType;
	FOnSpawnTab OnSpawnTab;
	FCanSpawnTab CanSpawnTab;
	TAttribute<ETabSpawnerMenuType::Type> MenuType;
	FText DisplayName;
};

class SLATE_API FTabManager : public TSharedFromThis<FTabManager>
{
public:
	virtual ~FTabManager() {}

	// The size of the floating window a tab opens in when it has no saved place.
	static void RegisterDefaultTabWindowSize(const FTabId& TabName, const FVector2D DefaultSize);
	static void UnregisterDefaultTabWindowSize(const FTabId& TabName);

	// Brings a live tab to the front, or spawns it; null when nothing could be spawned.
	TSharedPtr<SDockTab> TryInvokeTab(const FTabId& TabId);
	TSharedPtr<SDockTab> FindExistingLiveTab(const FTabId& TabId) const;

	// Whether a spawner is registered for the tab.
	bool HasTabSpawner(FName TabId) const;

protected:
	friend class StandIn::FTabManagerAccess;

	typedef TMap<FName, TSharedRef<FTabSpawnerEntry>> FTabSpawner;

	// Only the global tab manager is made in the stand-in, and it belongs to no tab: the owner is not kept.
	FTabManager(const TSharedPtr<SDockTab>& InOwnerTab, const TSharedRef<FTabManager::FTabSpawner>& InNomadTabSpawner)
		: NomadTabSpawner(InNomadTabSpawner)
	{
	}

	TSharedRef<FTabSpawner> NomadTabSpawner;
};

class SLATE_API FGlobalTabmanager : public FTabManager
{
public:
	static const TSharedRef<FGlobalTabmanager>& Get();

	FTabSpawnerEntry& RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab = FCanSpawnTab());
	void UnregisterNomadTabSpawner(const FName TabId);

private:
	friend class StandIn::FTabManagerAccess;

	FGlobalTabmanager()
		: FTabManager(TSharedPtr<SDockTab>(), MakeShareable(new FTabSpawner()))
	{
	}
};
