#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Inspector.h"
#include "Private/MultiBoxBlocks.h"

namespace StandIn
{
	// A menu shows its blocks as a menu entry widget shows them: overrides first, then the command's own.
	class FMultiBoxWidgetInspector final : public TWidgetInspector<SMultiBoxWidget>, public IMultiBoxInput
	{
	public:
		virtual std::vector<FMenuEntry> Entries(SWidget& Menu) const override
		{
			std::vector<FMenuEntry> Entries;
			for (const FMultiBlock* Block : ShownBlocks(Menu))
			{
				Entries.push_back(Describe(*Block));
			}
			return Entries;
		}

		virtual void ClickEntry(SWidget& Menu, size_t EntryIndex) const override
		{
			const std::vector<const FMultiBlock*> Blocks = ShownBlocks(Menu);
			check(EntryIndex < Blocks.size());
			const FMultiBlock& Block = *Blocks[EntryIndex];
			switch (Block.Kind)
			{
			case FMultiBlock::EKind::ComboButton:
				// The block is one combo button: a click anywhere on it opens the drop-down.
				OpenEntry(Menu, EntryIndex);
				return;
			case FMultiBlock::EKind::SubMenu:
				if (Block.bOpenSubMenuOnClick)
				{
					OpenEntry(Menu, EntryIndex);
				}
				return;
			default:
				break;
			}
			// A command the entry's list does not map does nothing.
			if (Block.CommandList.IsValid() && Block.Command.IsValid())
			{
				Block.CommandList->ExecuteAction(Block.Command.ToSharedRef());
			}
		}

		virtual TSharedPtr<SWidget> OpenEntry(SWidget& Menu, size_t EntryIndex) const override
		{
			const std::vector<const FMultiBlock*> Blocks = ShownBlocks(Menu);
			check(EntryIndex < Blocks.size());
			const FMultiBlock& Block = *Blocks[EntryIndex];
			if (Block.Kind == FMultiBlock::EKind::SubMenu)
			{
				// As the engine's menu entry does: a new menu with the list the entry was added with.
				FMenuBuilder SubMenuBuilder(Block.bShouldCloseWindowAfterMenuSelection, Block.CommandList);
				Block.SubMenuBuilder.ExecuteIfBound(SubMenuBuilder);
				return SubMenuBuilder.MakeWidget();
			}
			// The combo's action never runs; it only says whether the button is enabled and so takes a click.
			if (Block.Kind == FMultiBlock::EKind::ComboButton && Block.Action.CanExecute() && Block.MenuContentGenerator.IsBound())
			{
				return Block.MenuContentGenerator.Execute();
			}
			return nullptr;
		}

	private:
		static std::vector<const FMultiBlock*> ShownBlocks(SWidget& Menu)
		{
			std::vector<const FMultiBlock*> Blocks;
			const TSharedPtr<FMultiBox>& MultiBox = As(Menu).MultiBox;
			if (MultiBox.IsValid())
			{
				for (const std::shared_ptr<const FMultiBlock>& Block : MultiBox->Blocks)
				{
					if (Block->Kind != FMultiBlock::EKind::Search)
					{
						Blocks.push_back(Block.get());
					}
				}
			}
			return Blocks;
		}

		static FMenuEntry Describe(const FMultiBlock& Block)
		{
			FMenuEntry Entry;
			switch (Block.Kind)
			{
			case FMultiBlock::EKind::Heading:
				Entry.Kind = FMenuEntry::EKind::Heading;
				Entry.Label = Block.HeadingText;
				return Entry;
			case FMultiBlock::EKind::Separator:
				Entry.Kind = FMenuEntry::EKind::Separator;
				return Entry;
			default:
				break;
			}
			switch (Block.Kind)
			{
			case FMultiBlock::EKind::SubMenu:
				Entry.Kind = FMenuEntry::EKind::SubMenu;
				Entry.bOpensOnClick = Block.bOpenSubMenuOnClick;
				Entry.bClosesMenuAfterSelection = Block.bShouldCloseWindowAfterMenuSelection;
				break;
			case FMultiBlock::EKind::ToolBarButton:
				Entry.Kind = FMenuEntry::EKind::ToolBarButton;
				break;
			case FMultiBlock::EKind::ComboButton:
				Entry.Kind = FMenuEntry::EKind::ComboButton;
				Entry.bHasOwnAction = Block.Action.IsBound();
				Entry.bIsSimpleComboBox = Block.bSimpleComboBox;
				break;
			default:
				Entry.Kind = FMenuEntry::EKind::Entry;
				break;
			}
			const bool bHasCommand = Block.Command.IsValid();
			Entry.Label = Block.LabelOverride.IsSet() ? Block.LabelOverride.Get() : (bHasCommand ? Block.Command->GetLabel() : FText::GetEmpty());
			Entry.ToolTip = Block.ToolTipOverride.IsSet() ? Block.ToolTipOverride.Get() : (bHasCommand ? Block.Command->GetDescription() : FText::GetEmpty());
			const FSlateIcon Icon = Block.IconOverride.IsSet() ? Block.IconOverride.Get() : (bHasCommand ? Block.Command->GetIcon() : FSlateIcon());
			if (Icon.IsSet())
			{
				Entry.IconStyleSetName = Icon.GetStyleSetName();
				Entry.IconStyleName = Icon.GetStyleName();
				Entry.IconBrush = Icon.GetIcon();
			}
			return Entry;
		}
	};

	const FWidgetInspector& MultiBoxWidgetInspector()
	{
		static const FMultiBoxWidgetInspector Inspector;
		return Inspector;
	}
}
