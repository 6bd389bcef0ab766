#pragma once

#include "CoreMinimal.h"

DECLARE_DELEGATE(FExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction);

enum class EUIActionRepeatMode
{
	RepeatDisabled,
	RepeatEnabled,
};

// What a command or a menu entry does, and whether it can be done now.
struct SLATE_API FUIAction
{
	FExecuteAction ExecuteAction;
	// Unbound: always possible.
	FCanExecuteAction CanExecuteAction;
	EUIActionRepeatMode RepeatMode;

public:
	// Does nothing.
	FUIAction();
	FUIAction(FExecuteAction InitExecuteAction, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	bool CanExecute() const
	{
		return CanExecuteAction.IsBound() ? CanExecuteAction.Execute() : true;
	}

	// True when the action ran.
	bool Execute() const
	{
		if (CanExecute())
		{
			return ExecuteAction.ExecuteIfBound();
		}
		return false;
	}

	bool IsBound() const
	{
		return ExecuteAction.IsBound();
	}
};
