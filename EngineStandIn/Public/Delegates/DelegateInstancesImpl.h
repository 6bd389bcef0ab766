#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Delegates/DelegateInstanceInterface.h"
#include "Templates/SharedPointer.h"
#include <tuple>
#include <utility>

// Payload values are kept in the instance and passed after the delegate's own parameters.

template <bool bConst, class UserClass, ESPMode SPMode, typename FuncType, typename... VarTypes>
class TBaseSPMethodDelegateInstance;

// Holds its object weakly: once the object is gone the delegate is no longer bound.
template <bool bConst, class UserClass, ESPMode SPMode, typename WrappedRetValType, typename... ParamTypes, typename... VarTypes>
class TBaseSPMethodDelegateInstance<bConst, UserClass, SPMode, WrappedRetValType(ParamTypes...), VarTypes...> : public IBaseDelegateInstance<WrappedRetValType(ParamTypes...)>
{
public:
	typedef typename TMemFunPtrType<bConst, UserClass, WrappedRetValType(ParamTypes..., VarTypes...)>::Type FMethodPtr;

	TBaseSPMethodDelegateInstance(const TSharedRef<UserClass, SPMode>& InUserObject, FMethodPtr InMethodPtr, VarTypes... Vars)
		: UserObject(InUserObject), MethodPtr(InMethodPtr), Payload(Vars...)
	{
		check(InMethodPtr != nullptr);
	}

	virtual WrappedRetValType Execute(ParamTypes... Params) const override
	{
		const TSharedPtr<UserClass, SPMode> PinnedObject = UserObject.Pin();
		check(PinnedObject.IsValid());
		UserClass* const Object = PinnedObject.Get();
		return std::apply([&](const VarTypes&... Vars) -> WrappedRetValType {
			return (Object->*MethodPtr)(std::forward<ParamTypes>(Params)..., Vars...);
		},
						  Payload);
	}
	virtual bool IsSafeToExecute() const override { return UserObject.IsValid(); }

private:
	TWeakPtr<UserClass, SPMode> UserObject;
	FMethodPtr MethodPtr;
	std::tuple<VarTypes...> Payload;
};

template <bool bConst, class UserClass, typename FuncType, typename... VarTypes>
class TBaseRawMethodDelegateInstance;

// Holds a plain pointer: the caller keeps the object alive for as long as the delegate may run.
template <bool bConst, class UserClass, typename WrappedRetValType, typename... ParamTypes, typename... VarTypes>
class TBaseRawMethodDelegateInstance<bConst, UserClass, WrappedRetValType(ParamTypes...), VarTypes...> : public IBaseDelegateInstance<WrappedRetValType(ParamTypes...)>
{
public:
	typedef typename TMemFunPtrType<bConst, UserClass, WrappedRetValType(ParamTypes..., VarTypes...)>::Type FMethodPtr;

	TBaseRawMethodDelegateInstance(UserClass* InUserObject, FMethodPtr InMethodPtr, VarTypes... Vars)
		: UserObject(InUserObject), MethodPtr(InMethodPtr), Payload(Vars...)
	{
		check(InUserObject != nullptr && InMethodPtr != nullptr);
	}

	virtual WrappedRetValType Execute(ParamTypes... Params) const override
	{
		return std::apply([&](const VarTypes&... Vars) -> WrappedRetValType {
			return (UserObject->*MethodPtr)(std::forward<ParamTypes>(Params)..., Vars...);
		},
						  Payload);
	}
	virtual bool IsSafeToExecute() const override { return true; }

private:
	UserClass* UserObject;
	FMethodPtr MethodPtr;
	std::tuple<VarTypes...> Payload;
};

template <typename FuncType, typename FunctorType, typename... VarTypes>
class TBaseFunctorDelegateInstance;

template <typename WrappedRetValType, typename... ParamTypes, typename FunctorType, typename... VarTypes>
class TBaseFunctorDelegateInstance<WrappedRetValType(ParamTypes...), FunctorType, VarTypes...> : public IBaseDelegateInstance<WrappedRetValType(ParamTypes...)>
{
public:
	template <typename InFunctorType>
	explicit TBaseFunctorDelegateInstance(InFunctorType&& InFunctor, VarTypes... Vars)
		: Functor(std::forward<InFunctorType>(InFunctor)), Payload(Vars...)
	{
	}

	virtual WrappedRetValType Execute(ParamTypes... Params) const override
	{
		return std::apply([&](const VarTypes&... Vars) -> WrappedRetValType {
			return Functor(std::forward<ParamTypes>(Params)..., Vars...);
		},
						  Payload);
	}
	virtual bool IsSafeToExecute() const override { return true; }

private:
	// A lambda may change its own captures, as the engine allows.
	mutable FunctorType Functor;
	std::tuple<VarTypes...> Payload;
};
