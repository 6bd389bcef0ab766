#pragma once

#include "CoreTypes.h"
#include "Delegates/Delegate.h"

// A value, or a getter that is asked again every time the value is read (bound attributes are re-read on
// every paint).
template <typename ObjectType>
class TAttribute
{
public:
	typedef TDelegate<ObjectType()> FGetter;

	TAttribute() = default;
	template <typename OtherType>
	TAttribute(const OtherType& InInitialValue)
		: Value(InInitialValue), bIsSet(true) {}
	TAttribute(const FGetter& InGetter)
		: Getter(InGetter), bIsSet(true) {}

	static TAttribute Create(const FGetter& InGetter) { return TAttribute(InGetter); }
	template <typename FunctorType>
	static TAttribute CreateLambda(FunctorType&& Functor) { return TAttribute(FGetter::CreateLambda(std::forward<FunctorType>(Functor))); }

	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}
	const ObjectType& Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }
	void Set(const ObjectType& InNewValue)
	{
		Getter.Unbind();
		Value = InNewValue;
		bIsSet = true;
	}
	bool IsSet() const { return bIsSet; }
	bool IsBound() const { return Getter.IsBound(); }

private:
	mutable ObjectType Value = ObjectType();
	FGetter Getter;
	bool bIsSet = false;
};
