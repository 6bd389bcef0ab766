#pragma once

#include "CoreMinimal.h"

class FExtensionBase;
class FMenuBuilder;
class FToolBarBuilder;
class FUICommandList;

DECLARE_DELEGATE_OneParam(FMenuExtensionDelegate, class FMenuBuilder&);
DECLARE_DELEGATE_OneParam(FToolBarExtensionDelegate, class FToolBarBuilder&);

namespace EExtensionHook
{
	enum Position
	{
		Before,
		After,
		First,
	};
}

// Extensions that a menu or tool bar applies at its hooks, each with the command list its entries act in.
class FExtender
{
public:
	SLATE_API TSharedRef<const FExtensionBase> AddMenuExtension(FName ExtensionHook, EExtensionHook::Position HookPosition, const TSharedPtr<FUICommandList>& CommandList, const FMenuExtensionDelegate& MenuExtensionDelegate);
	SLATE_API TSharedRef<const FExtensionBase> AddToolBarExtension(FName ExtensionHook, EExtensionHook::Position HookPosition, const TSharedPtr<FUICommandList>& CommandList, const FToolBarExtensionDelegate& ToolBarExtensionDelegate);

	// Runs the builder of every extension of that kind at the hook and position, in the order they were
	// added, with the extension's command list pushed onto the builder while it runs.
	SLATE_API void Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBuilder& MenuBuilder) const;
	SLATE_API void Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FToolBarBuilder& ToolBarBuilder) const;

	// One extender with the extensions of all of them, in order.
	static SLATE_API TSharedPtr<FExtender> Combine(const TArray<TSharedPtr<FExtender>>& Extenders);

	SLATE_API int32 NumExtensions() const { return Extensions.Num(); }

private:
	TArray<TSharedPtr<const FExtensionBase>> Extensions;
};
