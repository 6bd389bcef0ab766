#pragma once

#include "CoreTypes.h"
#include "Templates/SharedPointer.h"
#include <functional>
#include <type_traits>
#include <utility>

// The member-function pointer type for a class and a call signature, const or not.
template <bool bConst, typename Class, typename FuncType>
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

// Single-cast delegates with the engine's factories. Payload values are appended after the delegate's own
// parameters; a delegate bound to a shared object holds it weakly and does nothing once it is gone.
template <typename FuncType>
class TDelegate;

template <typename RetValType, typename... ParamTypes>
class TDelegate<RetValType(ParamTypes...)>
{
public:
	// Methods that can be bound, with their payload types after the delegate's own parameters.
	template <typename UserClass, typename... VarTypes>
	using TMethodPtr = typename TMemFunPtrType<false, UserClass, RetValType(ParamTypes..., VarTypes...)>::Type;
	template <typename UserClass, typename... VarTypes>
	using TConstMethodPtr = typename TMemFunPtrType<true, UserClass, RetValType(ParamTypes..., VarTypes...)>::Type;

	TDelegate() = default;

	template <typename FunctorType, typename... VarTypes>
	static TDelegate CreateLambda(FunctorType&& Functor, VarTypes... Vars)
	{
		TDelegate Result;
		Result.Callable = [Functor = std::forward<FunctorType>(Functor), Vars...](ParamTypes... Params) mutable -> RetValType {
			return Functor(std::forward<ParamTypes>(Params)..., Vars...);
		};
		return Result;
	}

	template <typename FunctionType, typename... VarTypes>
	static TDelegate CreateStatic(FunctionType* Function, VarTypes... Vars)
	{
		return CreateLambda([Function](ParamTypes... Params, VarTypes... Payload) -> RetValType {
			return Function(std::forward<ParamTypes>(Params)..., Payload...);
		},
							Vars...);
	}

	template <typename UserClass, typename MethodType, typename... VarTypes>
	static TDelegate CreateRaw(UserClass* InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		return CreateLambda([InUserObject, InFunc](ParamTypes... Params, VarTypes... Payload) -> RetValType {
			return (InUserObject->*InFunc)(std::forward<ParamTypes>(Params)..., Payload...);
		},
							Vars...);
	}

	template <typename UserClass, ESPMode::Type Mode, typename MethodType, typename... VarTypes>
	static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& InUserObjectRef, MethodType InFunc, VarTypes... Vars)
	{
		return CreateWeak(std::weak_ptr<UserClass>(InUserObjectRef.Impl), InFunc, Vars...);
	}
	template <typename UserClass, ESPMode::Type Mode, typename MethodType, typename... VarTypes>
	static TDelegate CreateSP(const TSharedPtr<UserClass, Mode>& InUserObjectPtr, MethodType InFunc, VarTypes... Vars)
	{
		return CreateWeak(std::weak_ptr<UserClass>(InUserObjectPtr.Impl), InFunc, Vars...);
	}
	template <typename UserClass, typename MethodType, typename... VarTypes>
	static TDelegate CreateSP(UserClass* InUserObject, MethodType InFunc, VarTypes... Vars)
	{
		typedef typename std::remove_const<UserClass>::type MutableClass;
		std::shared_ptr<MutableClass> Shared = std::static_pointer_cast<MutableClass>(const_cast<MutableClass*>(InUserObject)->AsShared().Impl);
		return CreateWeak(std::weak_ptr<MutableClass>(Shared), InFunc, Vars...);
	}

	template <typename... ArgTypes>
	void BindLambda(ArgTypes&&... Args) { *this = CreateLambda(std::forward<ArgTypes>(Args)...); }
	template <typename... ArgTypes>
	void BindSP(ArgTypes&&... Args) { *this = CreateSP(std::forward<ArgTypes>(Args)...); }
	template <typename... ArgTypes>
	void BindRaw(ArgTypes&&... Args) { *this = CreateRaw(std::forward<ArgTypes>(Args)...); }
	template <typename... ArgTypes>
	void BindStatic(ArgTypes&&... Args) { *this = CreateStatic(std::forward<ArgTypes>(Args)...); }

	bool IsBound() const { return Callable && (!IsAlive || IsAlive()); }
	void Unbind()
	{
		Callable = nullptr;
		IsAlive = nullptr;
	}

	RetValType Execute(ParamTypes... Params) const
	{
		check(IsBound());
		return Callable(std::forward<ParamTypes>(Params)...);
	}

	template <typename R = RetValType>
	typename std::enable_if<std::is_void<R>::value, bool>::type ExecuteIfBound(ParamTypes... Params) const
	{
		if (!IsBound())
		{
			return false;
		}
		Callable(std::forward<ParamTypes>(Params)...);
		return true;
	}

private:
	template <typename UserClass, typename MethodType, typename... VarTypes>
	static TDelegate CreateWeak(std::weak_ptr<UserClass> Weak, MethodType InFunc, VarTypes... Vars)
	{
		TDelegate Result = CreateLambda([Weak, InFunc](ParamTypes... Params, VarTypes... Payload) -> RetValType {
			std::shared_ptr<UserClass> Pinned = Weak.lock();
			check(Pinned != nullptr);
			return (Pinned.get()->*InFunc)(std::forward<ParamTypes>(Params)..., Payload...);
		},
										Vars...);
		Result.IsAlive = [Weak]() {
			return !Weak.expired();
		};
		return Result;
	}

	std::function<RetValType(ParamTypes...)> Callable;
	std::function<bool()> IsAlive;
};

#define DECLARE_DELEGATE(DelegateName) typedef TDelegate<void()> DelegateName;
#define DECLARE_DELEGATE_OneParam(DelegateName, Param1Type) typedef TDelegate<void(Param1Type)> DelegateName;
#define DECLARE_DELEGATE_TwoParams(DelegateName, Param1Type, Param2Type) typedef TDelegate<void(Param1Type, Param2Type)> DelegateName;
#define DECLARE_DELEGATE_RetVal(ReturnValueType, DelegateName) typedef TDelegate<ReturnValueType()> DelegateName;
#define DECLARE_DELEGATE_RetVal_OneParam(ReturnValueType, DelegateName, Param1Type) typedef TDelegate<ReturnValueType(Param1Type)> DelegateName;
