#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include <utility>
#include <vector>

// Binds commands to actions. A command is known by its object, not by its name: a command registered
// again under the same name is another command.
class SLATE_API FUICommandList : public TSharedFromThis<FUICommandList>
{
public:
	virtual ~FUICommandList() {}

	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	// A null command is reported by a failed ensure and ignored.
	virtual void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction);

	// False when the command has no action in this list.
	virtual bool ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;

	// Null when the command has no action in this list.
	const FUIAction* GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const;

private:
	std::vector<std::pair<TSharedPtr<const FUICommandInfo>, FUIAction>> UICommandBindingMap;
};
