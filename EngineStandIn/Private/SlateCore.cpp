#include "Widgets/Images/SImage.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Children.h"
#include "SlotBase.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"
#include "Widgets/SWindow.h"
#include <utility>
#include <vector>

void SWidget::SetDebugInfo(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, size_t InAllocSize)
{
	TypeOfWidget = FName(InType);
}

namespace
{
	class SNullWidgetContent : public SWidget
	{
	public:
		virtual FChildren* GetChildren() override { return &NoChildren; }

	private:
		FNoChildren NoChildren;
	};

	TSharedRef<SWidget> MakeNullWidget()
	{
		TSharedRef<SWidget> Widget = MakeShareable(new SNullWidgetContent());
		Widget->SetDebugInfo("SNullWidget", __FILE__, __LINE__, sizeof(SNullWidgetContent));
		return Widget;
	}
} // namespace

TSharedRef<SWidget> SNullWidget::NullWidget = MakeNullWidget();

FSlotBase::FSlotBase()
	: Widget(SNullWidget::NullWidget) {}

TSharedRef<SWidget> FNoChildren::GetChildAt(int32 Index)
{
	checkNoEntry();
}

TSharedRef<const SWidget> FNoChildren::GetChildAt(int32 Index) const
{
	checkNoEntry();
}

const FSlotBase& FNoChildren::GetSlotAt(int32 ChildIndex) const
{
	checkNoEntry();
}

void SBoxPanel::ClearChildren()
{
	Children.Empty();
}

void SHorizontalBox::Construct(const FArguments& InArgs)
{
	for (FSlot* Slot : InArgs.Slots)
	{
		Children.Add(Slot);
	}
}

void SVerticalBox::Construct(const FArguments& InArgs)
{
	for (FSlot* Slot : InArgs.Slots)
	{
		Children.Add(Slot);
	}
}

void SWindow::Construct(const FArguments& InArgs)
{
	Title = InArgs._Title;
	InitialDesiredSize = InArgs._ClientSize;
	bHasMaximizeButton = InArgs._SupportsMaximize;
	bHasMinimizeButton = InArgs._SupportsMinimize;
}

void SWindow::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot[InContent];
}

const FName FButtonStyle::TypeName(TEXT("FButtonStyle"));

const FButtonStyle& FButtonStyle::GetDefault()
{
	static const FButtonStyle Default;
	return Default;
}

FName ISlateStyle::Join(FName A, const ANSICHAR* B)
{
	return B == nullptr ? A : FName(A.ToString() + FString(B));
}

namespace
{
	// The widget styles of the core style that the editor's widgets ask for.
	class FCoreStyleSet : public ISlateStyle
	{
	public:
		FCoreStyleSet()
		{
			ButtonStyles.emplace_back(FName(TEXT("Button")), FButtonStyle());
			ButtonStyles.emplace_back(FName(TEXT("NoBorder")), FButtonStyle());
		}

		virtual const FName& GetStyleSetName() const override
		{
			static const FName Name(TEXT("CoreStyle"));
			return Name;
		}
		// The core style keeps no brushes here.
		virtual void GetResources(TArray<const FSlateBrush*>& OutResources) const override {}
		virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier) const override { return FStyleDefaults::GetNoBrush(); }
		virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const DefaultBrush) const override { return DefaultBrush; }

	protected:
		virtual const FSlateWidgetStyle* GetWidgetStyleInternal(const FName DesiredTypeName, const FName StyleName) const override
		{
			if (DesiredTypeName != FButtonStyle::TypeName)
			{
				return nullptr;
			}
			for (const std::pair<FName, FButtonStyle>& Entry : ButtonStyles)
			{
				if (Entry.first == StyleName)
				{
					return &Entry.second;
				}
			}
			return nullptr;
		}

	private:
		std::vector<std::pair<FName, FButtonStyle>> ButtonStyles;
	};
} // namespace

const ISlateStyle& FCoreStyle::Get()
{
	static const FCoreStyleSet Instance;
	return Instance;
}

FSlateFontInfo FCoreStyle::GetDefaultFontStyle(const FName InTypefaceFontName, const int32 InSize, const FFontOutlineSettings& InOutlineSettings)
{
	FSlateFontInfo Font;
	Font.TypefaceFontName = InTypefaceFontName;
	Font.Size = InSize;
	Font.OutlineSettings = InOutlineSettings;
	return Font;
}

void SImage::Construct(const FArguments& InArgs)
{
	Image = InArgs._Image;
}

TSharedPtr<FGenericWindow> SWindow::GetNativeWindow()
{
	return NativeWindow;
}

TSharedPtr<const FGenericWindow> SWindow::GetNativeWindow() const
{
	return NativeWindow;
}

void SWindow::SetNativeWindow(TSharedRef<FGenericWindow> InNativeWindow)
{
	check(!NativeWindow.IsValid());
	NativeWindow = InNativeWindow;
}
