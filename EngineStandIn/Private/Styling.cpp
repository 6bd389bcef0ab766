#include "Application/SlateApplicationBase.h"
#include "Brushes/SlateImageBrush.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/StyleDefaults.h"
#include "Textures/SlateIcon.h"
#include <algorithm>
#include <vector>

namespace
{
	std::vector<const ISlateStyle*>& Repository()
	{
		static std::vector<const ISlateStyle*> Styles;
		return Styles;
	}

	void RemoveFromRepository(const FName StyleSetName)
	{
		std::vector<const ISlateStyle*>& Styles = Repository();
		Styles.erase(std::remove_if(Styles.begin(), Styles.end(), [&StyleSetName](const ISlateStyle* Style) {
						 return Style->GetStyleSetName() == StyleSetName;
					 }),
					 Styles.end());
	}
}

FSlateStyleSet::FSlateStyleSet(const FName& InStyleSetName)
	: StyleSetName(InStyleSetName)
	  // The engine's checkerboard, from the engine's content folder beside the binaries.
	  ,
	  DefaultBrush(new FSlateImageBrush(FString(TEXT("../../../Engine/Content/Slate/Checkerboard.png")), FVector2D(16.0f, 16.0f), FLinearColor::White, ESlateBrushTileType::Both))
{
	Set(TEXT("Default"), DefaultBrush);
}

FSlateStyleSet::~FSlateStyleSet()
{
	TArray<FSlateBrush*> Brushes;
	BrushResources.GenerateValueArray(Brushes);
	for (FSlateBrush* Brush : Brushes)
	{
		delete Brush;
	}
}

const FName& FSlateStyleSet::GetStyleSetName() const
{
	return StyleSetName;
}

void FSlateStyleSet::SetContentRoot(const FString& InContentRootDir)
{
	ContentRootDir = InContentRootDir;
}

FString FSlateStyleSet::RootToContentDir(const TCHAR* RelativePath, const TCHAR* Extension)
{
	return (ContentRootDir / RelativePath) + Extension;
}

void FSlateStyleSet::GetResources(TArray<const FSlateBrush*>& OutResources) const
{
	TArray<FSlateBrush*> Brushes;
	BrushResources.GenerateValueArray(Brushes);
	for (const FSlateBrush* Brush : Brushes)
	{
		OutResources.Add(Brush);
	}
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName, const ANSICHAR* Specifier) const
{
	return GetOptionalBrush(PropertyName, Specifier, DefaultBrush);
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const InDefaultBrush) const
{
	const FName StyleName = Join(PropertyName, Specifier);
	FSlateBrush* const* Brush = BrushResources.Find(StyleName);
	return Brush ? *Brush : InDefaultBrush;
}

void FSlateStyleSet::Set(const FName PropertyName, FSlateBrush* InBrush)
{
	// As the engine's map does, a brush replaced under its name is dropped, not deleted.
	BrushResources.Add(PropertyName, InBrush);
}

const FSlateWidgetStyle* FSlateStyleSet::GetWidgetStyleInternal(const FName DesiredTypeName, const FName StyleName) const
{
	return nullptr;
}

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	const FName& SlateStyleName = InSlateStyle.GetStyleSetName();
	check(SlateStyleName != NAME_None);
	check(!FindSlateStyle(SlateStyleName));
	Repository().push_back(&InSlateStyle);

	if (FSlateApplicationBase::IsInitialized())
	{
		if (FSlateRenderer* Renderer = FSlateApplicationBase::Get().GetRenderer())
		{
			Renderer->LoadStyleResources(InSlateStyle);
		}
	}
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	const FName& SlateStyleName = InSlateStyle.GetStyleSetName();
	check(SlateStyleName != NAME_None);
	RemoveFromRepository(SlateStyleName);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const FName StyleSetName)
{
	check(StyleSetName != NAME_None);
	RemoveFromRepository(StyleSetName);
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	for (const ISlateStyle* Style : Repository())
	{
		if (Style->GetStyleSetName() == InSlateStyleName)
		{
			return Style;
		}
	}
	return nullptr;
}

FSlateIcon::FSlateIcon()
	: StyleSetName(NAME_None), StyleName(NAME_None), bIsSet(false)
{
}

FSlateIcon::FSlateIcon(const FName& InStyleSetName, const FName& InStyleName)
	: StyleSetName(InStyleSetName), StyleName(InStyleName), bIsSet(true)
{
}

const ISlateStyle* FSlateIcon::GetStyleSet() const
{
	return StyleSetName == NAME_None ? nullptr : FSlateStyleRegistry::FindSlateStyle(StyleSetName);
}

const FSlateBrush* FSlateIcon::GetIcon() const
{
	const ISlateStyle* StyleSet = GetStyleSet();
	return StyleSet ? StyleSet->GetOptionalBrush(StyleName) : FStyleDefaults::GetNoBrush();
}
