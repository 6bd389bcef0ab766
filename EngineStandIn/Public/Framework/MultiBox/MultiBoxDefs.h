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

// Whether and under which name the user may customise a multi-box; the stand-in's never are.
struct SLATE_API FMultiBoxCustomization
{
	static const FMultiBoxCustomization None;

	FMultiBoxCustomization(FName InCustomizationName)
		: CustomizationName(InCustomizationName)
	{
	}

	FName GetCustomizationName() const { return CustomizationName; }

private:
	FName CustomizationName;
};
