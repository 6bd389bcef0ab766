#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Input/Reply.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

namespace StandIn
{
	class FButtonInspector;
}

class SLATE_API SButton : public SBorder
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SButton)
		: _Content(), _ButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button")) {}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
		// Shown when the button has no content of its own.
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_EVENT(FOnClicked, OnClicked)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

protected:
	// What a click does, once the mouse button is released over the button.
	FReply ExecuteOnClick();

private:
	friend class StandIn::FButtonInspector;

	const FButtonStyle* Style = nullptr;
	TAttribute<FText> Text;
	FOnClicked OnClicked;
};
