#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Framework/SlateDelegates.h"
#include "Misc/Attribute.h"
#include "Styling/CoreStyle.h"
#include "Textures/SlateIcon.h"
#include "Widgets/SWidget.h"
#include <climits>

class ISlateStyle;

DECLARE_DELEGATE_OneParam(FNewMenuDelegate, class FMenuBuilder&);

// Builds a multi-box block by block. Entries made from commands take their actions from the command list
// the builder had when they were added.
class SLATE_API FMultiBoxBuilder
{
public:
	FMultiBoxBuilder(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection, const TSharedPtr<const FUICommandList>& InCommandList, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), FName InTutorialHighlightName = NAME_None, FName InMenuName = NAME_None);
	virtual ~FMultiBoxBuilder() {}

	virtual TSharedRef<class SWidget> MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr, uint32 MaxHeight = INT_MAX);

	// Entries added until the matching pop act in this list.
	void PushCommandList(const TSharedRef<const FUICommandList> CommandList);
	// The list the builder was made with always stays.
	void PopCommandList();
	TSharedPtr<const FUICommandList> GetTopCommandList();

protected:
	virtual void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition) = 0;
	virtual void ApplySectionBeginning() {}

	TSharedRef<class FMultiBox> MultiBox;
	TArray<TSharedPtr<const FUICommandList>> CommandListStack;
	TArray<TSharedPtr<FExtender>> ExtenderStack;
};

class SLATE_API FBaseMenuBuilder : public FMultiBoxBuilder
{
public:
	FBaseMenuBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, bool bInCloseSelfOnly, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const ISlateStyle* InStyleSet = &FCoreStyle::Get(), FName InTutorialHighlightName = NAME_None, FName InMenuName = NAME_None);

	/**
	 * An entry for a command, shown with the command's label, tooltip and icon unless the overrides are set,
	 * and running the command's action in the builder's command list. The command must not be null.
	 */
	void AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook = NAME_None, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(), const FSlateIcon& InIconOverride = FSlateIcon(), FName InTutorialHighlightName = NAME_None);

protected:
	bool bCloseSelfOnly;
};

class SLATE_API FMenuBuilder : public FBaseMenuBuilder
{
public:
	FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const bool bCloseSelfOnly = false, const ISlateStyle* InStyleSet = &FCoreStyle::Get(), bool bInSearchable = true, FName InMenuName = NAME_None);

	virtual TSharedRef<class SWidget> MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr, uint32 MaxHeight = 1000) override;

	// The heading shows only once something is added to the section, so an empty section shows nothing. The
	// extensions before the hook are applied at its beginning, those after it at its end.
	void BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText = TAttribute<FText>());
	void EndSection();

	// A sub-menu whose content the delegate builds each time it opens, with the command list the builder
	// has now; it opens on hover unless told to open on click.
	void AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu, const bool bInOpenSubMenuOnClick = false, const FSlateIcon& InIcon = FSlateIcon(), const bool bInShouldCloseWindowAfterMenuSelection = true, FName InExtensionHook = NAME_None);

protected:
	virtual void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition) override;
	virtual void ApplySectionBeginning() override;

private:
	FName CurrentSectionExtensionHook;
	FText CurrentSectionHeadingText;
	bool bSectionNeedsToBeApplied;
	bool bSearchable;
};

class SLATE_API FToolBarBuilder : public FMultiBoxBuilder
{
public:
	FToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization, TSharedPtr<FExtender> InExtender = nullptr, const bool InForceSmallIcons = false);

	// A button for a command, shown with the command's label, tooltip and icon unless the overrides are set,
	// and running the command's action in the builder's command list. The command must not be null.
	void AddToolBarButton(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook = NAME_None, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), FName InTutorialHighlightName = NAME_None);

	// A button with its own action and a drop-down that the generator builds each time it opens; a simple
	// combo box shows neither icon nor label.
	void AddComboButton(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), bool bInSimpleComboBox = false, FName InTutorialHighlightName = NAME_None);

	// The extensions before the hook are applied at the section's beginning, those after it at its end.
	void BeginSection(FName InExtensionHook);
	void EndSection();

protected:
	virtual void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition) override;
	virtual void ApplySectionBeginning() override;

private:
	FName CurrentSectionExtensionHook;
	bool bSectionNeedsToBeApplied;
};
