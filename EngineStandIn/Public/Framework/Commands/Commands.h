#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/InputBindingManager.h"

// Behind UI_COMMAND: texts in the namespace "UICommands.<sub-namespace>", the icon named after the context and
// the command in the context's style set.
SLATE_API void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* InSubNamespace, const TCHAR* InCommandName, const TCHAR* InCommandNameUnderscoreTooltip, const ANSICHAR* DotCommandName, const TCHAR* FriendlyName, const TCHAR* InDescription, const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord = FInputChord());

#define UI_COMMAND(CommandId, FriendlyName, InDescription, CommandType, InDefaultChord, ...) \
	MakeUICommand_InternalUseOnly(this, CommandId, TEXT(LOCTEXT_NAMESPACE), TEXT(#CommandId), TEXT(#CommandId) TEXT("_ToolTip"), "." #CommandId, TEXT(FriendlyName), TEXT(InDescription), CommandType, InDefaultChord, ##__VA_ARGS__);

// A set of commands as a process-wide singleton. The binding manager owns the instance; this keeps a weak
// reference, so that unregistering the context releases it.
template <typename CommandContextType>
class TCommands : public FBindingContext
{
public:
	static void Register()
	{
		if (!Instance.IsValid())
		{
			TSharedRef<CommandContextType> NewInstance = MakeShareable(new CommandContextType());
			TSharedPtr<FBindingContext> ExistingBindingContext = FInputBindingManager::Get().GetContextByName(NewInstance->GetContextName());
			if (ExistingBindingContext.IsValid())
			{
				// Another module registered this set first; share it.
				Instance = StaticCastSharedPtr<CommandContextType>(ExistingBindingContext);
			}
			else
			{
				Instance = NewInstance;
				// The first command puts the instance into the binding manager, which keeps it alive.
				NewInstance->RegisterCommands();
				CommandsChanged.Broadcast(*NewInstance);
			}
		}
	}

	static bool IsRegistered()
	{
		return Instance.IsValid();
	}

	static const CommandContextType& Get()
	{
		return *(Instance.Pin());
	}

	static void Unregister()
	{
		if (Instance.IsValid())
		{
			TSharedPtr<CommandContextType> InstancePtr = Instance.Pin();
			FInputBindingManager::Get().RemoveContextByName(InstancePtr->GetContextName());
			CommandsChanged.Broadcast(*InstancePtr);
			check(InstancePtr.IsUnique());
			InstancePtr.Reset();
		}
	}

protected:
	TCommands(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: FBindingContext(InContextName, InContextDesc, InContextParent, InStyleSetName)
	{
	}
	virtual ~TCommands() {}

	static TWeakPtr<CommandContextType> Instance;

	virtual void RegisterCommands() = 0;
};

template <typename CommandContextType>
TWeakPtr<CommandContextType> TCommands<CommandContextType>::Instance;
