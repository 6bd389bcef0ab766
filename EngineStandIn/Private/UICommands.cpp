#include "Framework/Commands/Commands.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Internationalization/Internationalization.h"
#include "Styling/ISlateStyle.h"

FOnBindingContextChanged FBindingContext::CommandsChanged;

void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* InSubNamespace, const TCHAR* InCommandName, const TCHAR* InCommandNameUnderscoreTooltip, const ANSICHAR* DotCommandName, const TCHAR* FriendlyName, const TCHAR* InDescription, const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord)
{
	const FString UICommandsNamespace(TEXT("UICommands"));
	const FString Namespace = InSubNamespace && *InSubNamespace ? UICommandsNamespace + TEXT(".") + InSubNamespace : UICommandsNamespace;
	FUICommandInfo::MakeCommandInfo(
		This->AsShared(),
		OutCommand,
		InCommandName,
		FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(FriendlyName, *Namespace, InCommandName),
		FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(InDescription, *Namespace, InCommandNameUnderscoreTooltip),
		FSlateIcon(This->GetStyleSetName(), ISlateStyle::Join(This->GetContextName(), DotCommandName)),
		CommandType,
		InDefaultChord,
		InAlternateDefaultChord);
}

void FUICommandInfo::MakeCommandInfo(const TSharedRef<FBindingContext>& InContext, TSharedPtr<FUICommandInfo>& OutCommand, const FName InCommandName, const FText& InCommandLabel, const FText& InCommandDesc, const FSlateIcon& InIcon, const EUserInterfaceActionType InUserInterfaceType, const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord, const FName InBundle)
{
	if (InCommandLabel.IsEmpty())
	{
		static bool bReported = false;
		if (!bReported)
		{
			bReported = true;
			StandInAssertion::EnsureFailed("!InCommandLabel.IsEmpty()", __FILE__, __LINE__, TEXT("Command labels cannot be empty"));
		}
	}
	OutCommand = MakeShareable(new FUICommandInfo(InContext->GetContextName()));
	OutCommand->CommandName = InCommandName;
	OutCommand->Label = InCommandLabel;
	OutCommand->Description = InCommandDesc;
	OutCommand->Icon = InIcon;
	OutCommand->UserInterfaceType = InUserInterfaceType;
	FInputBindingManager::Get().CreateInputCommand(InContext, OutCommand.ToSharedRef());
}

void FUICommandInfo::UnregisterCommandInfo(const TSharedRef<FBindingContext>& InContext, const TSharedRef<FUICommandInfo>& InCommand)
{
	FInputBindingManager::Get().RemoveInputCommand(InContext, InCommand);
}

FInputBindingManager& FInputBindingManager::Get()
{
	static FInputBindingManager Instance;
	return Instance;
}

FInputBindingManager::FContextEntry* FInputBindingManager::FindContext(const FName ContextName)
{
	for (FContextEntry& Entry : Contexts)
	{
		if (Entry.ContextName == ContextName)
		{
			return &Entry;
		}
	}
	return nullptr;
}

const FInputBindingManager::FContextEntry* FInputBindingManager::FindContext(const FName ContextName) const
{
	return const_cast<FInputBindingManager*>(this)->FindContext(ContextName);
}

FInputBindingManager::FContextEntry& FInputBindingManager::FindOrAddContext(const FName ContextName)
{
	if (FContextEntry* Existing = FindContext(ContextName))
	{
		return *Existing;
	}
	Contexts.push_back(FContextEntry{ContextName, nullptr, {}});
	return Contexts.back();
}

TSharedPtr<FBindingContext> FInputBindingManager::GetContextByName(const FName& InContextName)
{
	const FContextEntry* Entry = FindContext(InContextName);
	return Entry ? Entry->BindingContext : TSharedPtr<FBindingContext>();
}

void FInputBindingManager::RemoveContextByName(const FName& InContextName)
{
	for (auto It = Contexts.begin(); It != Contexts.end(); ++It)
	{
		if (It->ContextName == InContextName)
		{
			Contexts.erase(It);
			return;
		}
	}
}

void FInputBindingManager::CreateInputCommand(const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InUICommandInfo)
{
	check(InUICommandInfo->BindingContext == InBindingContext->GetContextName());
	check(InUICommandInfo->CommandName != NAME_None);
	const FName ParentName = InBindingContext->GetContextParent();
	check(ParentName == NAME_None || FindContext(ParentName) != nullptr);

	FContextEntry& Entry = FindOrAddContext(InBindingContext->GetContextName());
	if (!Entry.BindingContext.IsValid())
	{
		Entry.BindingContext = InBindingContext;
	}
	for (TSharedPtr<FUICommandInfo>& Existing : Entry.Commands)
	{
		if (Existing->CommandName == InUICommandInfo->CommandName)
		{
			// The engine reports the duplicate once and lets the new command take the name.
			static bool bReported = false;
			if (!bReported)
			{
				bReported = true;
				StandInAssertion::EnsureFailed("!ExistingInfo.IsValid()", __FILE__, __LINE__, *FString::Printf(TEXT("A command with name %s already exists in context %s"), *InUICommandInfo->CommandName.ToString(), *InBindingContext->GetContextName().ToString()));
			}
			Existing = InUICommandInfo;
			return;
		}
	}
	Entry.Commands.push_back(InUICommandInfo);
}

void FInputBindingManager::RemoveInputCommand(const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InUICommandInfo)
{
	check(InUICommandInfo->BindingContext == InBindingContext->GetContextName());
	check(InUICommandInfo->CommandName != NAME_None);
	const FName ParentName = InBindingContext->GetContextParent();
	check(ParentName == NAME_None || FindContext(ParentName) != nullptr);

	// As the engine's, this enters the context if it was not there, though without its context object.
	FContextEntry& Entry = FindOrAddContext(InBindingContext->GetContextName());
	for (auto It = Entry.Commands.begin(); It != Entry.Commands.end(); ++It)
	{
		if ((*It)->CommandName == InUICommandInfo->CommandName)
		{
			Entry.Commands.erase(It);
			return;
		}
	}
}

const TSharedPtr<FUICommandInfo> FInputBindingManager::FindCommandInContext(const FName InBindingContext, const FName CommandName) const
{
	if (const FContextEntry* Entry = FindContext(InBindingContext))
	{
		for (const TSharedPtr<FUICommandInfo>& Command : Entry->Commands)
		{
			if (Command->CommandName == CommandName)
			{
				return Command;
			}
		}
	}
	return TSharedPtr<FUICommandInfo>();
}

void FInputBindingManager::GetCommandInfosFromContext(const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const
{
	OutCommandInfos.Empty();
	if (const FContextEntry* Entry = FindContext(InBindingContext))
	{
		for (const TSharedPtr<FUICommandInfo>& Command : Entry->Commands)
		{
			OutCommandInfos.Add(Command);
		}
	}
}
