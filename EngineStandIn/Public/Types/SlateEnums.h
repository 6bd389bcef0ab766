#pragma once

#include "CoreMinimal.h"

namespace ESelectInfo
{
	enum Type
	{
		OnKeyPress,
		OnNavigation,
		OnMouseClick,
		Direct
	};
}

namespace ETextCommit
{
	enum Type
	{
		Default,
		OnEnter,
		OnUserMovedFocus,
		OnCleared
	};
}

enum EOrientation
{
	Orient_Horizontal,
	Orient_Vertical,
};
