// Copyright UGCEditor contributors. All Rights Reserved.

#include "SPakingDialog.h"

#include "UGCPaking.h"

#include "Misc/MessageDialog.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SGridPanel.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "SPakingDialog"

// Named rather than anonymous, so that unity builds cannot mix these up with another unit's helpers.
namespace SPakingDialogWidgets
{
	FSlateFontInfo GetLabelFont()
	{
		return FCoreStyle::GetDefaultFontStyle("Bold", 10);
	}

	const FButtonStyle* GetComboButtonStyle()
	{
		return &FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder");
	}

	TSharedRef<SWidget> MakeEntryLabel(const FString& Caption)
	{
		return SNew(SEditableText)
			.Text(FText::FromString(Caption))
			.Font(SPakingDialogWidgets::GetLabelFont())
			.ColorAndOpacity(FLinearColor::White)
			.IsReadOnly(true);
	}

	// Empty pieces are dropped before trimming, so a piece of blanks stays as an empty name.
	void ParseRequiredDLCs(const FText& Text, TArray<FString>& OutDLCs)
	{
		OutDLCs.Empty();
		Text.ToString().ParseIntoArray(OutDLCs, TEXT(","), true);
		for (FString& DLC : OutDLCs)
		{
			DLC.TrimStartAndEndInline();
		}
	}
}

void SPakingDialog::Construct(const FArguments& InArgs)
{
	Paking = InArgs._Paking;
	CookedPluginNames = InArgs._CookedPlugins;

	PluginEntries.Empty();
	SelectedPlugin.Reset();
	RequiredDLCs.Empty();
	bPluginFlag = false;

	// Rows 2 to 8 stay empty: the entries grow inside row 1, which keeps the edition checkbox and the
	// action buttons below the list.
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.Padding(15)
		[
			SNew(SScrollBox)
			+ SScrollBox::Slot()
			[
				SNew(SGridPanel)
				+ SGridPanel::Slot(0, 0)
				.Padding(10)
				[
					SNew(SButton)
					.Text(LOCTEXT("AddPluginButtonLabel", "Add Plugin"))
					.OnClicked(this, &SPakingDialog::OnAddPluginClicked)
				]
				+ SGridPanel::Slot(0, 1)
				[
					SAssignNew(PluginEntriesBox, SVerticalBox)
				]
				+ SGridPanel::Slot(0, 9)
				.Padding(10)
				[
					SNew(SVerticalBox)
					+ SVerticalBox::Slot()
					[
						SNew(SEditableText)
						.Text(FText::FromString(TEXT("Calverly5 Plugin")))
						.Font(SPakingDialogWidgets::GetLabelFont())
					]
					+ SVerticalBox::Slot()
					[
						SNew(SCheckBox)
						.OnCheckStateChanged(this, &SPakingDialog::OnCalverly5PluginChanged)
					]
				]
				+ SGridPanel::Slot(0, 10)
				.Padding(10)
				[
					SNew(SButton)
					.Text(LOCTEXT("DistributeButton", "Distribute"))
					.OnClicked(this, &SPakingDialog::OnDistributeClicked)
				]
				+ SGridPanel::Slot(1, 10)
				.Padding(10)
				[
					SNew(SButton)
					.Text(LOCTEXT("ResetButton", "Reset"))
					.OnClicked(this, &SPakingDialog::OnResetClicked)
				]
			]
		]
	];
	// clang-format on
}

FReply SPakingDialog::OnAddPluginClicked()
{
	// New option objects for every row; the strings the rows already chose stay alive in their entries.
	CookedPluginOptions.Empty();
	for (const FString& PluginName : CookedPluginNames)
	{
		CookedPluginOptions.Add(MakeShareable(new FString(PluginName)));
	}

	if (CookedPluginOptions.Num() == 0)
	{
		FMessageDialog::Open(EAppMsgType::Ok, LOCTEXT("NoCookedPluginsMessage", "No cooked plugins available."));
		return FReply::Handled();
	}

	const int32 EntryIndex = PluginEntries.Add(FPakingDialogEntry());

	// clang-format off
	PluginEntriesBox->AddSlot()
	.Padding(5)
	[
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.FillWidth(0.8f)
		[
			SNew(SComboBox<TSharedPtr<FString>>)
			.OptionsSource(&CookedPluginOptions)
			.OnGenerateWidget(this, &SPakingDialog::OnGenerateEntryOption, EntryIndex)
			.OnSelectionChanged(this, &SPakingDialog::OnEntrySelectionChanged, EntryIndex)
			[
				SNew(SButton)
				.ButtonStyle(SPakingDialogWidgets::GetComboButtonStyle())
				[
					SNew(SEditableText)
					.Text(this, &SPakingDialog::GetEntryContentText, EntryIndex)
					.Font(SPakingDialogWidgets::GetLabelFont())
					.ColorAndOpacity(FLinearColor::White)
					.IsReadOnly(true)
				]
			]
		]
		+ SHorizontalBox::Slot()
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			[
				SPakingDialogWidgets::MakeEntryLabel(TEXT("Original Plugin"))
			]
			+ SVerticalBox::Slot()
			[
				SNew(SCheckBox)
				.OnCheckStateChanged(this, &SPakingDialog::OnEntryOriginalChanged, EntryIndex)
			]
		]
	];

	PluginEntriesBox->AddSlot()
	.Padding(5)
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		[
			SPakingDialogWidgets::MakeEntryLabel(TEXT("Enter required DLCs (separated by comma):"))
		]
		+ SVerticalBox::Slot()
		[
			SNew(SEditableTextBox)
			.HintText(FText::FromString(TEXT("Enter required DLC names separated by commas")))
			.OnTextCommitted(this, &SPakingDialog::OnEntryRequiredDLCsCommitted, EntryIndex)
		]
	];
	// clang-format on

	return FReply::Handled();
}

FReply SPakingDialog::OnDistributeClicked()
{
	if (PluginEntries.Num() == 0)
	{
		FMessageDialog::Open(EAppMsgType::Ok, LOCTEXT("NoPluginsAddedMessage", "No plugins have been added. Please add a plugin before distributing."));
		return FReply::Handled();
	}

	if (!Paking.IsValid())
	{
		return FReply::Handled();
	}

	Paking->Plugins.Empty();
	for (const FPakingDialogEntry& Entry : PluginEntries)
	{
		// A row left without a choice is not part of the run.
		if (!Entry.SelectedPlugin.IsValid())
		{
			continue;
		}

		FPakingPluginEntry PluginEntry;
		PluginEntry.PluginName = *Entry.SelectedPlugin;
		PluginEntry.bOriginal = Entry.bOriginal;
		for (const FString& DLC : Entry.RequiredDLCs)
		{
			PluginEntry.RequiredDLCs.Add(DLC);
		}
		Paking->Plugins.Add(PluginEntry);
	}
	Paking->bCalverly5Plugin = bCalverly5Plugin;

	Paking->Distribute();
	return FReply::Handled();
}

FReply SPakingDialog::OnResetClicked()
{
	if (!Paking.IsValid())
	{
		return FReply::Handled();
	}

	Paking->Plugins.Empty();
	PluginEntries.Empty();
	SelectedPlugin.Reset();
	RequiredDLCs.Empty();
	bPluginFlag = false;
	OriginalPluginCount = 0;
	// The edition checkbox is left as the user set it, and so is bCalverly5Plugin.
	PluginEntriesBox->ClearChildren();

	return FReply::Handled();
}

void SPakingDialog::OnCalverly5PluginChanged(ECheckBoxState NewState)
{
	bCalverly5Plugin = NewState == ECheckBoxState::Checked;
	UE_LOG(LogTemp, Log, TEXT("Calverly5 checkbox is %s"), bCalverly5Plugin ? TEXT("checked") : TEXT("unchecked"));
}

TSharedRef<SWidget> SPakingDialog::OnGenerateEntryOption(TSharedPtr<FString> Option, int32 EntryIndex)
{
	check(PluginEntries.IsValidIndex(EntryIndex));

	// clang-format off
	return SNew(SButton)
		.ButtonStyle(SPakingDialogWidgets::GetComboButtonStyle())
		[
			SPakingDialogWidgets::MakeEntryLabel(Option.IsValid() ? *Option : FString(TEXT("Invalid Plugin")))
		];
	// clang-format on
}

FText SPakingDialog::GetEntryContentText(int32 EntryIndex) const
{
	const FPakingDialogEntry& Entry = PluginEntries[EntryIndex];
	return Entry.SelectedPlugin.IsValid() ? FText::FromString(*Entry.SelectedPlugin) : FText::FromString(TEXT("Select a cooked plugin"));
}

void SPakingDialog::OnEntrySelectionChanged(TSharedPtr<FString> NewSelection, ESelectInfo::Type SelectInfo, int32 EntryIndex)
{
	FPakingDialogEntry& Entry = PluginEntries[EntryIndex];
	if (NewSelection.IsValid())
	{
		Entry.SelectedPlugin = NewSelection;
	}
}

void SPakingDialog::OnEntryOriginalChanged(ECheckBoxState NewState, int32 EntryIndex)
{
	FPakingDialogEntry& Entry = PluginEntries[EntryIndex];
	if (NewState == ECheckBoxState::Checked)
	{
		// Counted on every check, without looking at the old flag.
		Entry.bOriginal = true;
		++OriginalPluginCount;
		UE_LOG(LogTemp, Log, TEXT("Plugin at index %d marked as original"), EntryIndex);
	}
	else if (Entry.bOriginal)
	{
		Entry.bOriginal = false;
		--OriginalPluginCount;
		UE_LOG(LogTemp, Log, TEXT("Plugin at index %d unmarked as original"), EntryIndex);
	}
}

void SPakingDialog::OnEntryRequiredDLCsCommitted(const FText& Text, ETextCommit::Type CommitType, int32 EntryIndex)
{
	FPakingDialogEntry& Entry = PluginEntries[EntryIndex];
	SPakingDialogWidgets::ParseRequiredDLCs(Text, Entry.RequiredDLCs);
	for (const FString& DLC : Entry.RequiredDLCs)
	{
		UE_LOG(LogTemp, Log, TEXT("%s"), *DLC);
	}
}

void SPakingDialog::OnPluginSelected(TSharedPtr<FString> NewSelection, ESelectInfo::Type SelectInfo)
{
	if (NewSelection.IsValid())
	{
		SelectedPlugin = NewSelection;
		UE_LOG(LogTemp, Log, TEXT("Plugin Selected: %s"), **SelectedPlugin);
	}
	else
	{
		UE_LOG(LogTemp, Warning, TEXT("Invalid or empty plugin selected."));
		SelectedPlugin.Reset();
	}
}

FText SPakingDialog::GetSelectedPluginText() const
{
	return SelectedPlugin.IsValid() ? FText::FromString(*SelectedPlugin) : FText::FromString(TEXT("Select a cooked plugin"));
}

void SPakingDialog::OnRequiredDLCsEntered(const FText& Text)
{
	SPakingDialogWidgets::ParseRequiredDLCs(Text, RequiredDLCs);
	UE_LOG(LogTemp, Log, TEXT("DLCs entered:"));
	for (const FString& DLC : RequiredDLCs)
	{
		UE_LOG(LogTemp, Log, TEXT("%s"), *DLC);
	}
}

#undef LOCTEXT_NAMESPACE
