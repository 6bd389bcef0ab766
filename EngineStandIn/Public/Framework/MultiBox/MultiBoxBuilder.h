#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Framework/SlateDelegates.h"
#include "Misc/Attribute.h"
#include "Styling/CoreStyle.h"
#include "Textures/SlateIcon.h"
#include "Widgets/SWidget.h"
#include <climits>
#include <vector>

class FExtender;
class ISlateStyle;

// Builds a multi-box block by block. Entries made from commands take their actions from the command list
// the builder had when they were added.
class SLATE_API FMultiBoxBuilder
{
public:
	FMultiBoxBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection, const TSharedPtr<const FUICommandList>& InCommandList, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), FName InTutorialHighlightName = NAME_None, FName InMenuName = NAME_None);
	virtual ~FMultiBoxBuilder() {}

	virtual TSharedRef<class SWidget> MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr, uint32 MaxHeight = INT_MAX);

protected:
	virtual void ApplySectionBeginning() {}

	TSharedRef<class FMultiBox> MultiBox;
	std::vector<TSharedPtr<const FUICommandList>> CommandListStack;
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

	// The heading shows only once something is added to the section, so an empty section shows nothing.
	void BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText = TAttribute<FText>());
	void EndSection();

protected:
	virtual void ApplySectionBeginning() override;

private:
	FName CurrentSectionExtensionHook;
	FText CurrentSectionHeadingText;
	bool bSectionNeedsToBeApplied;
	bool bSearchable;
};
