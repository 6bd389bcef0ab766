#pragma once

#include "CoreTypes.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "Delegates/Delegate.h"
#include <utility>

// A value, or a getter that is asked again every time the value is read (bound attributes are re-read on
// every paint).
template <typename ObjectType>
class TAttribute
{
public:
	DECLARE_DELEGATE_RetVal(ObjectType, FGetter);

	TAttribute()
		: Value(), bIsSet(false) {}
	template <typename OtherType>
	TAttribute(const OtherType& InInitialValue)
		: Value(InInitialValue), bIsSet(true) {}

	static TAttribute Create(const FGetter& InGetter) { return TAttribute(InGetter, true); }
	static TAttribute<ObjectType> Create(TFunction<ObjectType(void)>&& InLambda) { return Create(FGetter::CreateLambda(std::move(InLambda))); }

	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}
	template <typename OtherType>
	void Set(const OtherType& InNewValue)
	{
		Getter.Unbind();
		Value = InNewValue;
		bIsSet = true;
	}
	bool IsSet() const { return bIsSet; }
	bool IsBound() const { return Getter.IsBound(); }

private:
	TAttribute(const FGetter& InGetter, bool bExplicitConstructor)
		: Value(), bIsSet(true), Getter(InGetter) {}

	mutable ObjectType Value;
	bool bIsSet;
	FGetter Getter;
};
