#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"

// One extension: where it goes, the command list its entries act in, and the builder that adds them.
class FExtensionBase
{
public:
	enum class EType
	{
		Menu,
		ToolBar
	};

	EType Type = EType::Menu;
	FName Hook;
	EExtensionHook::Position HookPosition = EExtensionHook::After;
	TSharedPtr<FUICommandList> CommandList;
	FMenuExtensionDelegate MenuExtensionDelegate;
	FToolBarExtensionDelegate ToolBarExtensionDelegate;
};

namespace
{
	// The extension's builder runs with its command list on top of the builder's, if it has one.
	template <typename BuilderType, typename RunType>
	void ApplyExtensions(const TArray<TSharedPtr<const FExtensionBase>>& Extensions, FExtensionBase::EType Type, FName Hook, EExtensionHook::Position Position, BuilderType& Builder, const RunType& Run)
	{
		for (const TSharedPtr<const FExtensionBase>& Extension : Extensions)
		{
			if (Extension->Type != Type || Extension->Hook != Hook || Extension->HookPosition != Position)
			{
				continue;
			}
			if (Extension->CommandList.IsValid())
			{
				Builder.PushCommandList(Extension->CommandList.ToSharedRef());
			}
			Run(*Extension);
			if (Extension->CommandList.IsValid())
			{
				Builder.PopCommandList();
			}
		}
	}
}

namespace StandInExtensions
{
	// Where and with which command list an extension applies; the caller adds the builder of its kind.
	TSharedRef<FExtensionBase> MakeExtension(FExtensionBase::EType Type, FName ExtensionHook, EExtensionHook::Position HookPosition, const TSharedPtr<FUICommandList>& CommandList)
	{
		const TSharedRef<FExtensionBase> Extension = MakeShareable(new FExtensionBase());
		Extension->Type = Type;
		Extension->Hook = ExtensionHook;
		Extension->HookPosition = HookPosition;
		Extension->CommandList = CommandList;
		return Extension;
	}
}

TSharedRef<const FExtensionBase> FExtender::AddMenuExtension(FName ExtensionHook, EExtensionHook::Position HookPosition, const TSharedPtr<FUICommandList>& CommandList, const FMenuExtensionDelegate& MenuExtensionDelegate)
{
	const TSharedRef<FExtensionBase> Extension = StandInExtensions::MakeExtension(FExtensionBase::EType::Menu, ExtensionHook, HookPosition, CommandList);
	Extension->MenuExtensionDelegate = MenuExtensionDelegate;
	Extensions.Add(Extension);
	return Extension;
}

TSharedRef<const FExtensionBase> FExtender::AddToolBarExtension(FName ExtensionHook, EExtensionHook::Position HookPosition, const TSharedPtr<FUICommandList>& CommandList, const FToolBarExtensionDelegate& ToolBarExtensionDelegate)
{
	const TSharedRef<FExtensionBase> Extension = StandInExtensions::MakeExtension(FExtensionBase::EType::ToolBar, ExtensionHook, HookPosition, CommandList);
	Extension->ToolBarExtensionDelegate = ToolBarExtensionDelegate;
	Extensions.Add(Extension);
	return Extension;
}

void FExtender::Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBuilder& MenuBuilder) const
{
	ApplyExtensions(Extensions, FExtensionBase::EType::Menu, ExtensionHook, HookPosition, MenuBuilder, [&MenuBuilder](const FExtensionBase& Extension) {
		Extension.MenuExtensionDelegate.ExecuteIfBound(MenuBuilder);
	});
}

void FExtender::Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FToolBarBuilder& ToolBarBuilder) const
{
	ApplyExtensions(Extensions, FExtensionBase::EType::ToolBar, ExtensionHook, HookPosition, ToolBarBuilder, [&ToolBarBuilder](const FExtensionBase& Extension) {
		Extension.ToolBarExtensionDelegate.ExecuteIfBound(ToolBarBuilder);
	});
}

TSharedPtr<FExtender> FExtender::Combine(const TArray<TSharedPtr<FExtender>>& Extenders)
{
	const TSharedPtr<FExtender> Combined = MakeShareable(new FExtender());
	for (const TSharedPtr<FExtender>& Extender : Extenders)
	{
		if (Extender.IsValid())
		{
			Combined->Extensions.Append(Extender->Extensions);
		}
	}
	return Combined;
}
