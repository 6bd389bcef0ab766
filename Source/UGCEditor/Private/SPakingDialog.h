// Copyright UGCEditor contributors. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FUGCPaking;
class SVerticalBox;

/**
 * One row of the dialog: the cooked plugin picked in its combo box, the DLCs it needs and whether it is the
 * user's own work.
 */
struct FPakingDialogEntry
{
	TSharedPtr<FString> SelectedPlugin;
	TArray<FString> RequiredDLCs;
	bool bOriginal = false;
};

/** Where the user lists the plugins of one distribution run and starts it. */
class SPakingDialog : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SPakingDialog) {}
		SLATE_ARGUMENT(TSharedPtr<FUGCPaking>, Paking)
		SLATE_ARGUMENT(TArray<FString>, CookedPlugins)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

private:
	FReply OnAddPluginClicked();
	FReply OnDistributeClicked();
	FReply OnResetClicked();
	void OnCalverly5PluginChanged(ECheckBoxState NewState);

	/** Bound to one row's widgets; the index is the row's place in PluginEntries. */
	TSharedRef<SWidget> OnGenerateEntryOption(TSharedPtr<FString> Option, int32 EntryIndex);
	FText GetEntryContentText(int32 EntryIndex) const;
	void OnEntrySelectionChanged(TSharedPtr<FString> NewSelection, ESelectInfo::Type SelectInfo, int32 EntryIndex);
	void OnEntryOriginalChanged(ECheckBoxState NewState, int32 EntryIndex);
	void OnEntryRequiredDLCsCommitted(const FText& Text, ETextCommit::Type CommitType, int32 EntryIndex);

	/** Dialog-wide counterparts of the row handlers, acting on SelectedPlugin and RequiredDLCs; no widget is bound to them. */
	void OnPluginSelected(TSharedPtr<FString> NewSelection, ESelectInfo::Type SelectInfo);
	FText GetSelectedPluginText() const;
	void OnRequiredDLCsEntered(const FText& Text);

	/** The rows in the order added; a row's index here is its identity for its handlers. */
	TArray<FPakingDialogEntry> PluginEntries;
	/** Kept by the "Original Plugin" boxes; nothing reads it. */
	int32 OriginalPluginCount = 0;
	TSharedPtr<FUGCPaking> Paking;
	/** The cooked plugins discovery found, in its order; every row offers them. */
	TArray<FString> CookedPluginNames;
	/** The dialog-wide choice of the unbound handlers. */
	TSharedPtr<FString> SelectedPlugin;
	/** The "Calverly5 Plugin" box, handed to the pipeline at each run. */
	bool bCalverly5Plugin = false;
	/** Shared by every row's combo box, and rebuilt on each "Add Plugin". */
	TArray<TSharedPtr<FString>> CookedPluginOptions;
	/** Holds two blocks per row: its selection row and its DLC block. */
	TSharedPtr<SVerticalBox> PluginEntriesBox;
	/** Cleared by construction and by Reset; nothing else uses it. */
	bool bPluginFlag = false;
	/** The dialog-wide DLC list of the unbound handler. */
	TArray<FString> RequiredDLCs;
};
