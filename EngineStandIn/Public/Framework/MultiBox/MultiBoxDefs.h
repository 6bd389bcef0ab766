#pragma once

#include "CoreMinimal.h"

// The kinds of multi-boxes: menus, menu bars and tool bars are built alike.
enum class EMultiBoxType : uint8
{
	MenuBar,
	ToolBar,
	VerticalToolBar,
	UniformToolBar,
	Menu,
	ButtonRow,
};
