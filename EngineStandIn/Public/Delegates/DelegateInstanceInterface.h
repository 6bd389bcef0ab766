#pragma once

#include "CoreTypes.h"

// What a delegate calls through: one object per binding kind (lambda, shared-pointer method).
template <typename FuncType>
struct IBaseDelegateInstance;

template <typename RetType, typename... ArgTypes>
struct IBaseDelegateInstance<RetType(ArgTypes...)>
{
	virtual ~IBaseDelegateInstance() {}
	virtual RetType Execute(ArgTypes... Args) const = 0;
	// False once the object a method was bound to is gone.
	virtual bool IsSafeToExecute() const = 0;
};

template <bool Const, typename Class, typename FuncType>
struct TMemFunPtrType;

template <typename Class, typename RetType, typename... ArgTypes>
struct TMemFunPtrType<false, Class, RetType(ArgTypes...)>
{
	typedef RetType (Class::*Type)(ArgTypes...);
};

template <typename Class, typename RetType, typename... ArgTypes>
struct TMemFunPtrType<true, Class, RetType(ArgTypes...)>
{
	typedef RetType (Class::*Type)(ArgTypes...) const;
};
