#pragma once

// The blocks a multi-box builder adds; what the engine's FMultiBlock kinds hold, as far as the stand-in's
// builders make them. Not part of the control surface.
#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/SlateDelegates.h"
#include "Textures/SlateIcon.h"

namespace StandIn
{
	struct FMultiBlock
	{
		enum class EKind
		{
			// The menu's search box, hidden until the user types.
			Search,
			Heading,
			Separator,
			Entry,
			SubMenu,
			ToolBarButton,
			ComboButton
		};

		EKind Kind = EKind::Entry;
		// A heading's text.
		FText HeadingText;

		// An entry's or a button's command, and the command list the builder had when it was added (a
		// sub-menu's content is built with that list too).
		TSharedPtr<const FUICommandInfo> Command;
		TSharedPtr<const FUICommandList> CommandList;
		TAttribute<FText> LabelOverride;
		TAttribute<FText> ToolTipOverride;
		// Unset: the command's icon, or none.
		TAttribute<FSlateIcon> IconOverride;

		// A sub-menu's content, and how it opens and closes.
		FNewMenuDelegate SubMenuBuilder;
		bool bOpenSubMenuOnClick = false;
		bool bShouldCloseWindowAfterMenuSelection = true;

		// A combo button's own action and its drop-down.
		FUIAction Action;
		FOnGetContent MenuContentGenerator;
		bool bSimpleComboBox = false;
	};
}
