#pragma once

#include "CoreMinimal.h"
#include "Styling/ISlateStyle.h"

struct FSlateBrush;

// A named set of styles. It owns the brushes it is given; a name it lacks gives its default brush from
// GetBrush and the caller's fallback from GetOptionalBrush.
class SLATECORE_API FSlateStyleSet : public ISlateStyle
{
public:
	FSlateStyleSet(const FName& InStyleSetName);
	virtual ~FSlateStyleSet();

	virtual const FName& GetStyleSetName() const override;

	virtual void SetContentRoot(const FString& InContentRootDir);
	// The content root joined with the path, then the extension as it is given.
	virtual FString RootToContentDir(const TCHAR* RelativePath, const TCHAR* Extension);

	virtual void GetResources(TArray<const FSlateBrush*>& OutResources) const override;
	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* const DefaultBrush = FStyleDefaults::GetNoBrush()) const override;

	// Takes ownership: the brush is deleted with the set.
	void Set(const FName PropertyName, FSlateBrush* InBrush);

protected:
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(const FName DesiredTypeName, const FName StyleName) const override;

	FName StyleSetName;
	FString ContentRootDir;
	FSlateBrush* DefaultBrush;
	TMap<FName, FSlateBrush*> BrushResources;
};
