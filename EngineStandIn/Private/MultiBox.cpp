#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "MultiBoxBlocks.h"

FUIAction::FUIAction()
	: RepeatMode(EUIActionRepeatMode::RepeatDisabled)
{
}

// The engine's can-execute here asks whether Slate runs normally (not inside a modal loop or the debugger);
// in the stand-in it always does, so the test is left unbound.
FUIAction::FUIAction(FExecuteAction InitExecuteAction, EUIActionRepeatMode InitRepeatMode)
	: ExecuteAction(InitExecuteAction), RepeatMode(InitRepeatMode)
{
}

FUIAction::FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, EUIActionRepeatMode InitRepeatMode)
	: ExecuteAction(InitExecuteAction), CanExecuteAction(InitCanExecuteAction), RepeatMode(InitRepeatMode)
{
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, FCanExecuteAction(), RepeatMode));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction)
{
	if (!ensure(InUICommandInfo.IsValid()))
	{
		return;
	}
	// Mapping a command twice is caught only by the engine's slow checks; otherwise the later action wins.
	for (std::pair<TSharedPtr<const FUICommandInfo>, FUIAction>& Binding : UICommandBindingMap)
	{
		if (Binding.first == InUICommandInfo)
		{
			Binding.second = InUIAction;
			return;
		}
	}
	UICommandBindingMap.emplace_back(InUICommandInfo, InUIAction);
}

bool FUICommandList::ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	if (Action != nullptr)
	{
		Action->Execute();
		return true;
	}
	return false;
}

const FUIAction* FUICommandList::GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const
{
	if (!ensure(Command.IsValid()))
	{
		return nullptr;
	}
	for (const std::pair<TSharedPtr<const FUICommandInfo>, FUIAction>& Binding : UICommandBindingMap)
	{
		if (Binding.first == Command)
		{
			return &Binding.second;
		}
	}
	return nullptr;
}

FMultiBox::FMultiBox(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection)
	: Type(InType), bShouldCloseWindowAfterMenuSelection(bInShouldCloseWindowAfterMenuSelection)
{
}

FMultiBox::~FMultiBox() {}

void SMultiBoxWidget::Construct(const FArguments& InArgs) {}

FMultiBoxBuilder::FMultiBoxBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection, const TSharedPtr<const FUICommandList>& InCommandList, TSharedPtr<FExtender> InExtender, FName InTutorialHighlightName, FName InMenuName)
	: MultiBox(MakeShareable(new FMultiBox(InType, bInShouldCloseWindowAfterMenuSelection)))
{
	CommandListStack.push_back(InCommandList);
}

TSharedRef<SWidget> FMultiBoxBuilder::MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride, uint32 MaxHeight)
{
	TSharedRef<SMultiBoxWidget> Widget = SNew(SMultiBoxWidget);
	Widget->SetMultiBox(MultiBox);
	if (InMakeMultiBoxBuilderOverride != nullptr && InMakeMultiBoxBuilderOverride->IsBound())
	{
		InMakeMultiBoxBuilderOverride->Execute(MultiBox, Widget);
	}
	return Widget;
}

FBaseMenuBuilder::FBaseMenuBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, bool bInCloseSelfOnly, TSharedPtr<FExtender> InExtender, const ISlateStyle* InStyleSet, FName InTutorialHighlightName, FName InMenuName)
	: FMultiBoxBuilder(InType, bInShouldCloseWindowAfterMenuSelection, InCommandList, InExtender, InTutorialHighlightName, InMenuName), bCloseSelfOnly(bInCloseSelfOnly)
{
}

void FBaseMenuBuilder::AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook, const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const FSlateIcon& InIconOverride, FName InTutorialHighlightName)
{
	ApplySectionBeginning();
	check(InCommand.IsValid());
	auto Block = std::make_shared<StandIn::FMultiBlock>();
	Block->Kind = StandIn::FMultiBlock::EKind::Entry;
	Block->Command = InCommand;
	Block->CommandList = CommandListStack.back();
	Block->LabelOverride = InLabelOverride;
	Block->ToolTipOverride = InToolTipOverride;
	Block->IconOverride = InIconOverride;
	MultiBox->Blocks.push_back(Block);
}

FMenuBuilder::FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender, const bool bCloseSelfOnly, const ISlateStyle* InStyleSet, bool bInSearchable, FName InMenuName)
	: FBaseMenuBuilder(EMultiBoxType::Menu, bInShouldCloseWindowAfterMenuSelection, InCommandList, bCloseSelfOnly, InExtender, InStyleSet, NAME_None, InMenuName), bSectionNeedsToBeApplied(false), bSearchable(bInSearchable)
{
	if (bSearchable)
	{
		auto Search = std::make_shared<StandIn::FMultiBlock>();
		Search->Kind = StandIn::FMultiBlock::EKind::Search;
		MultiBox->Blocks.push_back(Search);
	}
}

TSharedRef<SWidget> FMenuBuilder::MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride, uint32 MaxHeight)
{
	return FMultiBoxBuilder::MakeWidget(InMakeMultiBoxBuilderOverride, MaxHeight);
}

void FMenuBuilder::BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText)
{
	check(CurrentSectionExtensionHook == NAME_None && !bSectionNeedsToBeApplied);
	bSectionNeedsToBeApplied = true;
	CurrentSectionExtensionHook = InExtensionHook;
	CurrentSectionHeadingText = InHeadingText.Get();
}

void FMenuBuilder::EndSection()
{
	CurrentSectionExtensionHook = NAME_None;
	bSectionNeedsToBeApplied = false;
	CurrentSectionHeadingText = FText::GetEmpty();
}

void FMenuBuilder::ApplySectionBeginning()
{
	if (bSectionNeedsToBeApplied)
	{
		// As the engine's, this counts the hidden search box as a block, so a menu that is not searchable
		// gets no separator after its first block.
		if (MultiBox->Blocks.size() > 1)
		{
			auto Separator = std::make_shared<StandIn::FMultiBlock>();
			Separator->Kind = StandIn::FMultiBlock::EKind::Separator;
			MultiBox->Blocks.push_back(Separator);
		}
		if (!CurrentSectionHeadingText.IsEmpty())
		{
			auto Heading = std::make_shared<StandIn::FMultiBlock>();
			Heading->Kind = StandIn::FMultiBlock::EKind::Heading;
			Heading->HeadingText = CurrentSectionHeadingText;
			MultiBox->Blocks.push_back(Heading);
		}
		bSectionNeedsToBeApplied = false;
		CurrentSectionHeadingText = FText::GetEmpty();
	}
}
