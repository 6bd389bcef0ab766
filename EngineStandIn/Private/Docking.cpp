#include "Framework/Docking/TabManager.h"
#include "StandIn/Journal.h"
#include "StandIn/Records/TabRecord.h"
#include "StandIn/WindowMenu.h"
#include "StandInWorld.h"
#include "Widgets/Docking/SDockTab.h"
#include <memory>
#include <vector>

namespace
{
	// The engine's size for a floating tab window that nobody gave a size.
	const FVector2D FallbackWindowSize(1000.0f, 600.0f);

	struct FOpenTab
	{
		FName TabType;
		FText DisplayName;
		TSharedRef<SDockTab> Tab;
	};

	struct FDockingState
	{
		std::vector<std::pair<FTabId, FVector2D>> DefaultSizes;
		std::vector<FOpenTab> OpenTabs;
	};

	FDockingState& State()
	{
		static FDockingState Instance;
		return Instance;
	}
}

namespace StandIn
{
	class FTabManagerAccess
	{
	public:
		static FTabSpawnerEntry* FindSpawner(const FTabManager& Manager, const FName& TabType)
		{
			const TSharedRef<FTabSpawnerEntry>* Spawner = Manager.NomadTabSpawner->Find(TabType);
			return Spawner ? &Spawner->Get() : nullptr;
		}

		static TSharedPtr<SDockTab> Spawn(FTabSpawnerEntry& Spawner, const FTabId& TabId)
		{
			FVector2D Size = FallbackWindowSize;
			for (const std::pair<FTabId, FVector2D>& DefaultSize : State().DefaultSizes)
			{
				if (DefaultSize.first == TabId)
				{
					Size = DefaultSize.second;
				}
			}
			const TSharedRef<SWindow> Window = SNew(SWindow).Title(Spawner.DisplayName).ClientSize(Size);
			const FSpawnTabArgs Args(Window, TabId);
			if (Spawner.CanSpawnTab.IsBound() && !Spawner.CanSpawnTab.Execute(Args))
			{
				return TSharedPtr<SDockTab>();
			}
			const TSharedRef<SDockTab> Tab = Spawner.OnSpawnTab.Execute(Args);
			Tab->bIsOpen = true;
			// A tab that brings no label of its own is titled with the spawner's display name.
			if (!Tab->TabLabel.IsBound() && Tab->TabLabel.Get().IsEmpty())
			{
				Tab->TabLabel = Spawner.DisplayName.IsEmpty() ? FText::FromString(Spawner.TabType.ToString()) : Spawner.DisplayName;
			}
			Window->SetContent(Tab);
			State().OpenTabs.push_back(FOpenTab{Spawner.TabType, Spawner.DisplayName, Tab});
			AppendToJournal(std::make_shared<FTabRecord>(FTabRecord::EKind::Spawned, Tab, Spawner.DisplayName, TabId.TabType.ToString(), Size));
			return Tab;
		}

		static void Close(SDockTab& Tab)
		{
			std::vector<FOpenTab>& OpenTabs = State().OpenTabs;
			for (auto It = OpenTabs.begin(); It != OpenTabs.end(); ++It)
			{
				if (&It->Tab.Get() == &Tab)
				{
					const FOpenTab Closed = *It;
					OpenTabs.erase(It);
					AppendToJournal(std::make_shared<FTabRecord>(FTabRecord::EKind::Closed, Closed.Tab, Closed.DisplayName, Closed.TabType.ToString(), FVector2D(0.0f, 0.0f)));
					return;
				}
			}
		}

		static TSharedRef<FGlobalTabmanager> MakeGlobal() { return MakeShareable(new FGlobalTabmanager()); }

		static void ForgetSpawners() { FGlobalTabmanager::Get()->NomadTabSpawner->Empty(); }

		static std::vector<FWindowMenuTab> ListedTabs()
		{
			TArray<TSharedRef<FTabSpawnerEntry>> Spawners;
			FGlobalTabmanager::Get()->NomadTabSpawner->GenerateValueArray(Spawners);
			std::vector<FWindowMenuTab> Listed;
			for (const TSharedRef<FTabSpawnerEntry>& Spawner : Spawners)
			{
				const ETabSpawnerMenuType::Type MenuType = Spawner->MenuType.Get();
				if (MenuType != ETabSpawnerMenuType::Hidden)
				{
					Listed.push_back(FWindowMenuTab{Spawner->DisplayName, MenuType == ETabSpawnerMenuType::Enabled});
				}
			}
			return Listed;
		}
	};

	std::vector<FWindowMenuTab> WindowMenuTabs()
	{
		return FTabManagerAccess::ListedTabs();
	}
}

namespace StandInTabs
{
	void Forget()
	{
		StandIn::FTabManagerAccess::ForgetSpawners();
		State().DefaultSizes.clear();
		State().OpenTabs.clear();
	}
}

void FTabManager::RegisterDefaultTabWindowSize(const FTabId& TabName, const FVector2D DefaultSize)
{
	UnregisterDefaultTabWindowSize(TabName);
	State().DefaultSizes.emplace_back(TabName, DefaultSize);
}

void FTabManager::UnregisterDefaultTabWindowSize(const FTabId& TabName)
{
	std::vector<std::pair<FTabId, FVector2D>>& Sizes = State().DefaultSizes;
	for (auto It = Sizes.begin(); It != Sizes.end(); ++It)
	{
		if (It->first.TabType == TabName.TabType && It->first.InstanceId == TabName.InstanceId)
		{
			Sizes.erase(It);
			return;
		}
	}
}

TSharedPtr<SDockTab> FTabManager::TryInvokeTab(const FTabId& TabId)
{
	for (const FOpenTab& Open : State().OpenTabs)
	{
		if (Open.TabType == TabId.TabType)
		{
			StandIn::AppendToJournal(std::make_shared<StandIn::FTabRecord>(StandIn::FTabRecord::EKind::BroughtToFront, Open.Tab, Open.DisplayName, TabId.TabType.ToString(), FVector2D(0.0f, 0.0f)));
			return Open.Tab;
		}
	}
	FTabSpawnerEntry* Spawner = StandIn::FTabManagerAccess::FindSpawner(*this, TabId.TabType);
	return Spawner ? StandIn::FTabManagerAccess::Spawn(*Spawner, TabId) : TSharedPtr<SDockTab>();
}

TSharedPtr<SDockTab> FTabManager::FindExistingLiveTab(const FTabId& TabId) const
{
	for (const FOpenTab& Open : State().OpenTabs)
	{
		if (Open.TabType == TabId.TabType)
		{
			return Open.Tab;
		}
	}
	return TSharedPtr<SDockTab>();
}

bool FTabManager::HasTabSpawner(FName TabId) const
{
	return StandIn::FTabManagerAccess::FindSpawner(*this, TabId) != nullptr;
}

const TSharedRef<FGlobalTabmanager>& FGlobalTabmanager::Get()
{
	static const TSharedRef<FGlobalTabmanager> Instance = StandIn::FTabManagerAccess::MakeGlobal();
	return Instance;
}

FTabSpawnerEntry& FGlobalTabmanager::RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab)
{
	// The engine refuses a second spawner of one name with an ensure; the stand-in replaces it.
	UnregisterNomadTabSpawner(TabId);
	return NomadTabSpawner->Add(TabId, MakeShareable(new FTabSpawnerEntry(TabId, OnSpawnTab, CanSpawnTab))).Get();
}

void FGlobalTabmanager::UnregisterNomadTabSpawner(const FName TabId)
{
	NomadTabSpawner->Remove(TabId);
}

void SDockTab::Construct(const FArguments& InArgs)
{
	TabRole = InArgs._TabRole;
	TabLabel = InArgs._Label;
	ChildSlot.Padding(FMargin(0.0f))[InArgs._Content.Widget];
}

void SDockTab::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot.Padding(FMargin(0.0f))[InContent];
}

bool SDockTab::RequestCloseTab()
{
	if (!bIsOpen)
	{
		return false;
	}
	bIsOpen = false;
	StandIn::FTabManagerAccess::Close(*this);
	return true;
}
