#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateWidgetStyle.h"

class SLATECORE_API ISlateStyle
{
public:
	virtual ~ISlateStyle() {}

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

protected:
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(const FName DesiredTypeName, const FName StyleName) const = 0;
	static FName Join(FName A, const ANSICHAR* B);
};
