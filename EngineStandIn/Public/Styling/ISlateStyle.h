#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateWidgetStyle.h"
#include "Styling/StyleDefaults.h"

struct FSlateBrush;

class SLATECORE_API ISlateStyle
{
public:
	virtual ~ISlateStyle() {}

	virtual const FName& GetStyleSetName() const = 0;

	// A style of another type or an unknown name gives the type's default style.
	template <typename WidgetStyleType>
	const WidgetStyleType& GetWidgetStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr) const
	{
		const FSlateWidgetStyle* ExistingStyle = GetWidgetStyleInternal(WidgetStyleType::TypeName, Join(PropertyName, Specifier));
		if (ExistingStyle == nullptr)
		{
			return WidgetStyleType::GetDefault();
		}
		return *static_cast<const WidgetStyleType*>(ExistingStyle);
	}

	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	virtual void GetResources(TArray<const FSlateBrush*>& OutResources) const = 0;
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* const DefaultBrush = FStyleDefaults::GetNoBrush()) const = 0;

	static FName Join(FName A, const ANSICHAR* B);

protected:
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(const FName DesiredTypeName, const FName StyleName) const = 0;
};
