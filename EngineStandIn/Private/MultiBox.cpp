#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
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

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction, RepeatMode));
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

// The stand-in's multi-boxes are never customised, so the customisation is not kept.
FMultiBoxBuilder::FMultiBoxBuilder(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection, const TSharedPtr<const FUICommandList>& InCommandList, TSharedPtr<FExtender> InExtender, FName InTutorialHighlightName, FName InMenuName)
	: MultiBox(MakeShareable(new FMultiBox(InType, bInShouldCloseWindowAfterMenuSelection)))
{
	CommandListStack.Add(InCommandList);
	ExtenderStack.Add(InExtender);
}

void FMultiBoxBuilder::PushCommandList(const TSharedRef<const FUICommandList> CommandList)
{
	CommandListStack.Add(CommandList);
}

void FMultiBoxBuilder::PopCommandList()
{
	if (ensure(CommandListStack.Num() > 1))
	{
		CommandListStack.RemoveAt(CommandListStack.Num() - 1);
	}
}

TSharedPtr<const FUICommandList> FMultiBoxBuilder::GetTopCommandList()
{
	return CommandListStack[CommandListStack.Num() - 1];
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
	: FMultiBoxBuilder(InType, FMultiBoxCustomization::None, bInShouldCloseWindowAfterMenuSelection, InCommandList, InExtender, InTutorialHighlightName, InMenuName), bCloseSelfOnly(bInCloseSelfOnly)
{
}

void FBaseMenuBuilder::AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook, const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const FSlateIcon& InIconOverride, FName InTutorialHighlightName)
{
	ApplySectionBeginning();
	ApplyHook(InExtensionHook, EExtensionHook::Before);
	check(InCommand.IsValid());
	auto Block = std::make_shared<StandIn::FMultiBlock>();
	Block->Kind = StandIn::FMultiBlock::EKind::Entry;
	Block->Command = InCommand;
	Block->CommandList = GetTopCommandList();
	Block->LabelOverride = InLabelOverride;
	Block->ToolTipOverride = InToolTipOverride;
	if (InIconOverride.IsSet())
	{
		Block->IconOverride = InIconOverride;
	}
	MultiBox->Blocks.push_back(Block);
	ApplyHook(InExtensionHook, EExtensionHook::After);
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
	ApplyHook(InExtensionHook, EExtensionHook::Before);
	bSectionNeedsToBeApplied = true;
	CurrentSectionExtensionHook = InExtensionHook;
	CurrentSectionHeadingText = InHeadingText.Get();
}

void FMenuBuilder::EndSection()
{
	const FName SectionExtensionHook = CurrentSectionExtensionHook;
	CurrentSectionExtensionHook = NAME_None;
	bSectionNeedsToBeApplied = false;
	CurrentSectionHeadingText = FText::GetEmpty();
	ApplyHook(SectionExtensionHook, EExtensionHook::After);
}

void FMenuBuilder::AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu, const bool bInOpenSubMenuOnClick, const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection, FName InExtensionHook)
{
	ApplySectionBeginning();
	ApplyHook(InExtensionHook, EExtensionHook::Before);
	auto Block = std::make_shared<StandIn::FMultiBlock>();
	Block->Kind = StandIn::FMultiBlock::EKind::SubMenu;
	Block->CommandList = GetTopCommandList();
	Block->LabelOverride = InMenuLabel;
	Block->ToolTipOverride = InToolTip;
	if (InIcon.IsSet())
	{
		Block->IconOverride = InIcon;
	}
	Block->SubMenuBuilder = InSubMenu;
	Block->bOpenSubMenuOnClick = bInOpenSubMenuOnClick;
	Block->bShouldCloseWindowAfterMenuSelection = bInShouldCloseWindowAfterMenuSelection;
	MultiBox->Blocks.push_back(Block);
	ApplyHook(InExtensionHook, EExtensionHook::After);
}

void FMenuBuilder::ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition)
{
	const TSharedPtr<FExtender>& Extender = ExtenderStack[ExtenderStack.Num() - 1];
	if (InExtensionHook != NAME_None && Extender.IsValid())
	{
		Extender->Apply(InExtensionHook, HookPosition, *this);
	}
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

const FMultiBoxCustomization FMultiBoxCustomization::None(NAME_None);

FToolBarBuilder::FToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization, TSharedPtr<FExtender> InExtender, const bool InForceSmallIcons)
	: FMultiBoxBuilder(EMultiBoxType::ToolBar, InCustomization, false, InCommandList, InExtender), bSectionNeedsToBeApplied(false)
{
}

void FToolBarBuilder::AddToolBarButton(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook, const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, FName InTutorialHighlightName)
{
	ApplySectionBeginning();
	ApplyHook(InExtensionHook, EExtensionHook::Before);
	check(InCommand.IsValid());
	auto Block = std::make_shared<StandIn::FMultiBlock>();
	Block->Kind = StandIn::FMultiBlock::EKind::ToolBarButton;
	Block->Command = InCommand;
	Block->CommandList = GetTopCommandList();
	Block->LabelOverride = InLabelOverride;
	Block->ToolTipOverride = InToolTipOverride;
	Block->IconOverride = InIconOverride;
	MultiBox->Blocks.push_back(Block);
	ApplyHook(InExtensionHook, EExtensionHook::After);
}

void FToolBarBuilder::AddComboButton(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator, const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, bool bInSimpleComboBox, FName InTutorialHighlightName)
{
	ApplySectionBeginning();
	auto Block = std::make_shared<StandIn::FMultiBlock>();
	Block->Kind = StandIn::FMultiBlock::EKind::ComboButton;
	Block->CommandList = GetTopCommandList();
	Block->Action = InAction;
	Block->MenuContentGenerator = InMenuContentGenerator;
	Block->LabelOverride = InLabelOverride;
	Block->ToolTipOverride = InToolTipOverride;
	Block->IconOverride = InIconOverride;
	Block->bSimpleComboBox = bInSimpleComboBox;
	MultiBox->Blocks.push_back(Block);
}

void FToolBarBuilder::BeginSection(FName InExtensionHook)
{
	check(CurrentSectionExtensionHook == NAME_None && !bSectionNeedsToBeApplied);
	ApplyHook(InExtensionHook, EExtensionHook::Before);
	bSectionNeedsToBeApplied = true;
	CurrentSectionExtensionHook = InExtensionHook;
}

void FToolBarBuilder::EndSection()
{
	const FName SectionExtensionHook = CurrentSectionExtensionHook;
	CurrentSectionExtensionHook = NAME_None;
	bSectionNeedsToBeApplied = false;
	ApplyHook(SectionExtensionHook, EExtensionHook::After);
}

void FToolBarBuilder::ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition)
{
	const TSharedPtr<FExtender>& Extender = ExtenderStack[ExtenderStack.Num() - 1];
	if (InExtensionHook != NAME_None && Extender.IsValid())
	{
		Extender->Apply(InExtensionHook, HookPosition, *this);
	}
}

void FToolBarBuilder::ApplySectionBeginning()
{
	if (bSectionNeedsToBeApplied)
	{
		if (!MultiBox->Blocks.empty())
		{
			auto Separator = std::make_shared<StandIn::FMultiBlock>();
			Separator->Kind = StandIn::FMultiBlock::EKind::Separator;
			MultiBox->Blocks.push_back(Separator);
		}
		bSectionNeedsToBeApplied = false;
	}
}
