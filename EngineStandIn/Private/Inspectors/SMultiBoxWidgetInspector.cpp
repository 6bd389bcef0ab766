#include "Framework/MultiBox/MultiBox.h"
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
			// A command the entry's list does not map does nothing.
			if (Block.CommandList.IsValid() && Block.Command.IsValid())
			{
				Block.CommandList->ExecuteAction(Block.Command.ToSharedRef());
			}
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
			Entry.Kind = FMenuEntry::EKind::Entry;
			const bool bHasCommand = Block.Command.IsValid();
			Entry.Label = Block.LabelOverride.IsSet() ? Block.LabelOverride.Get() : (bHasCommand ? Block.Command->GetLabel() : FText::GetEmpty());
			Entry.ToolTip = Block.ToolTipOverride.IsSet() ? Block.ToolTipOverride.Get() : (bHasCommand ? Block.Command->GetDescription() : FText::GetEmpty());
			const FSlateIcon Icon = Block.IconOverride.IsSet() ? Block.IconOverride : (bHasCommand ? Block.Command->GetIcon() : FSlateIcon());
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
