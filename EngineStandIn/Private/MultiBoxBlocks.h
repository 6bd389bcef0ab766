#pragma once

// The blocks a multi-box builder adds; what the engine's FMultiBlock kinds hold, as far as the stand-in's
// builders make them. Not part of the control surface.
#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
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
			Entry
		};

		EKind Kind = EKind::Entry;
		// A heading's text.
		FText HeadingText;

		// An entry's command and the command list it was added with.
		TSharedPtr<const FUICommandInfo> Command;
		TSharedPtr<const FUICommandList> CommandList;
		TAttribute<FText> LabelOverride;
		TAttribute<FText> ToolTipOverride;
		FSlateIcon IconOverride;
	};
}
