#pragma once

#include "CoreMinimal.h"
#include "Textures/SlateIcon.h"
#include "Framework/Commands/InputChord.h"

class FBindingContext;
class FUICommandInfo;

enum class EUserInterfaceActionType : uint8
{
	None,
	Button,
	ToggleButton,
	RadioButton,
	Check,
	CollapsedButton
};

DECLARE_MULTICAST_DELEGATE_OneParam(FOnBindingContextChanged, const FBindingContext&);

// A context in which commands are valid, with the style set their icons come from.
class SLATE_API FBindingContext : public TSharedFromThis<FBindingContext>
{
public:
	FBindingContext(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: ContextName(InContextName), ContextParent(InContextParent), ContextDesc(InContextDesc), StyleSetName(InStyleSetName)
	{
		check(InStyleSetName != NAME_None);
	}

	FName GetContextName() const { return ContextName; }
	FName GetContextParent() const { return ContextParent; }
	FName GetStyleSetName() const { return StyleSetName; }
	const FText& GetContextDesc() const { return ContextDesc; }

	// Told when the commands of a context are registered or unregistered.
	static FOnBindingContextChanged CommandsChanged;

private:
	FName ContextName;
	FName ContextParent;
	FText ContextDesc;
	FName StyleSetName;
};

class SLATE_API FUICommandInfo
{
	friend class FInputBindingManager;

public:
	FUICommandInfo(const FName InBindingContext)
		: BindingContext(InBindingContext), UserInterfaceType(EUserInterfaceActionType::Button) {}

	// Makes the command and registers it with FInputBindingManager under the context.
	static void MakeCommandInfo(const TSharedRef<class FBindingContext>& InContext, TSharedPtr<FUICommandInfo>& OutCommand, const FName InCommandName, const FText& InCommandLabel, const FText& InCommandDesc, const FSlateIcon& InIcon, const EUserInterfaceActionType InUserInterfaceType, const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord = FInputChord(), const FName InBundle = NAME_None);
	static void UnregisterCommandInfo(const TSharedRef<class FBindingContext>& InContext, const TSharedRef<FUICommandInfo>& InCommand);

	const FText& GetLabel() const { return Label; }
	const FText& GetDescription() const { return Description; }
	const FSlateIcon& GetIcon() const { return Icon; }
	EUserInterfaceActionType GetUserInterfaceType() const { return UserInterfaceType; }
	FName GetCommandName() const { return CommandName; }
	FName GetBindingContext() const { return BindingContext; }

private:
	FText Label;
	FText Description;
	FSlateIcon Icon;
	FName CommandName;
	FName BindingContext;
	EUserInterfaceActionType UserInterfaceType;
};
