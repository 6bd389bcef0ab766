// Copyright UGCEditor contributors. All Rights Reserved.

#include "UGCEditorCommands.h"

#include "UGCEditorStyle.h"

#include "Framework/Commands/InputChord.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Interfaces/IPluginManager.h"
#include "Textures/SlateIcon.h"

#define LOCTEXT_NAMESPACE "FUGCEditorModule"

FUGCEditorCommands::FUGCEditorCommands()
	: TCommands<FUGCEditorCommands>(TEXT("UGCEditor"), NSLOCTEXT("Contexts", "UGCEditor", "Moravane Plugin"), NAME_None, FUGCEditorStyle::GetStyleSetName())
{
}

void FUGCEditorCommands::RegisterCommands()
{
	UI_COMMAND(CreateUGCAction, "Create Mod", "Create a new DLC package as a content plugin", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(PackageUGCAction, "Package Mod", "Share and distribute your DLC", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(PakingUGCAction, "Distribute", "Generating important files and paking your DLC", EUserInterfaceActionType::Button, FInputChord());
}

TArray<TSharedPtr<FUICommandInfo>> FUGCEditorCommands::RegisterUGCCommands(const TArray<TSharedRef<IPlugin>>& Plugins) const
{
	TArray<TSharedPtr<FUICommandInfo>> Commands;
	// Reserved up front, so that the element a command is written into stays where it is.
	Commands.Reserve(Plugins.Num());
	// Called through Get(), which hands out the set as const; the binding manager wants it mutable.
	const TSharedRef<FBindingContext> Context = ConstCastSharedRef<FBindingContext>(AsShared());
	for (const TSharedRef<IPlugin>& Plugin : Plugins)
	{
		TSharedPtr<FUICommandInfo>& Command = Commands.AddDefaulted_GetRef();
		const FName CommandName(*(TEXT("UGCEditorUGC_") + Plugin->GetName()));
		FUICommandInfo::MakeCommandInfo(Context, Command, CommandName, FText::FromString(Plugin->GetName()), FText::FromString(Plugin->GetBaseDir()), FSlateIcon(), EUserInterfaceActionType::Button, FInputChord());
	}
	return Commands;
}

void FUGCEditorCommands::UnregisterUGCCommands(const TArray<TSharedPtr<FUICommandInfo>>& Commands) const
{
	const TSharedRef<FBindingContext> Context = ConstCastSharedRef<FBindingContext>(AsShared());
	for (const TSharedPtr<FUICommandInfo>& Command : Commands)
	{
		FUICommandInfo::UnregisterCommandInfo(Context, Command.ToSharedRef());
	}
}

#undef LOCTEXT_NAMESPACE
