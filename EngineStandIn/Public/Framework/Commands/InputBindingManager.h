#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/InputChord.h"
#include "Framework/Commands/UICommandInfo.h"
#include <vector>

// Every binding context with its commands. A context enters with its first command and holds its
// context object from then on.
class SLATE_API FInputBindingManager
{
public:
	static FInputBindingManager& Get();
	virtual ~FInputBindingManager() {}

	// Null for a context that no command has entered.
	TSharedPtr<FBindingContext> GetContextByName(const FName& InContextName);
	void RemoveContextByName(const FName& InContextName);

	void CreateInputCommand(const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InUICommandInfo);
	void RemoveInputCommand(const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InUICommandInfo);

	const TSharedPtr<FUICommandInfo> FindCommandInContext(const FName InBindingContext, const FName CommandName) const;
	void GetCommandInfosFromContext(const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const;

private:
	FInputBindingManager() {}

	struct FContextEntry
	{
		FName ContextName;
		TSharedPtr<FBindingContext> BindingContext;
		std::vector<TSharedPtr<FUICommandInfo>> Commands;
	};

	FContextEntry* FindContext(const FName ContextName);
	const FContextEntry* FindContext(const FName ContextName) const;
	FContextEntry& FindOrAddContext(const FName ContextName);

	std::vector<FContextEntry> Contexts;
};
