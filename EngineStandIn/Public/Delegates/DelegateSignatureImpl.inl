#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Delegates/DelegateInstanceInterface.h"
#include "Delegates/DelegateInstancesImpl.h"
#include "Templates/SharedPointer.h"
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

// Single-cast delegate. The instance is never changed after binding, so copies may share it.
template <typename WrappedRetValType, typename... ParamTypes>
class TBaseDelegate
{
public:
	typedef WrappedRetValType RetValType;
	typedef RetValType TFuncType(ParamTypes...);

	// The method-pointer types the Slate argument macros name when they bind.
	template <typename UserClass>
	struct TSPMethodDelegate : TBaseSPMethodDelegateInstance<false, UserClass, ESPMode::Fast, TFuncType>
	{
	};
	template <typename UserClass, typename Var1Type>
	struct TSPMethodDelegate_OneVar : TBaseSPMethodDelegateInstance<false, UserClass, ESPMode::Fast, TFuncType, Var1Type>
	{
	};
	template <typename UserClass, typename Var1Type>
	struct TSPMethodDelegate_OneVar_Const : TBaseSPMethodDelegateInstance<true, UserClass, ESPMode::Fast, TFuncType, Var1Type>
	{
	};

	template <typename FunctorType, typename... VarTypes>
	UE_NODISCARD static TBaseDelegate<RetValType, ParamTypes...> CreateLambda(FunctorType&& InFunctor, VarTypes... Vars)
	{
		typedef TBaseFunctorDelegateInstance<TFuncType, typename std::decay<FunctorType>::type, VarTypes...> FInstance;
		return TBaseDelegate(std::make_shared<FInstance>(std::forward<FunctorType>(InFunctor), Vars...));
	}

	template <typename UserClass, typename... VarTypes>
	UE_NODISCARD static TBaseDelegate<RetValType, ParamTypes...> CreateRaw(UserClass* InUserObject, typename TMemFunPtrType<false, UserClass, RetValType(ParamTypes..., VarTypes...)>::Type InFunc, VarTypes... Vars)
	{
		static_assert(!std::is_const<UserClass>::value, "Attempting to bind a delegate with a const object pointer and non-const member function.");
		typedef TBaseRawMethodDelegateInstance<false, UserClass, TFuncType, VarTypes...> FInstance;
		return TBaseDelegate(std::make_shared<FInstance>(InUserObject, InFunc, Vars...));
	}
	template <typename UserClass, typename... VarTypes>
	UE_NODISCARD static TBaseDelegate<RetValType, ParamTypes...> CreateRaw(const UserClass* InUserObject, typename TMemFunPtrType<true, UserClass, RetValType(ParamTypes..., VarTypes...)>::Type InFunc, VarTypes... Vars)
	{
		typedef TBaseRawMethodDelegateInstance<true, const UserClass, TFuncType, VarTypes...> FInstance;
		return TBaseDelegate(std::make_shared<FInstance>(InUserObject, InFunc, Vars...));
	}

	template <typename UserClass, typename... VarTypes>
	UE_NODISCARD static TBaseDelegate<RetValType, ParamTypes...> CreateSP(const TSharedRef<UserClass, ESPMode::Fast>& InUserObjectRef, typename TMemFunPtrType<false, UserClass, RetValType(ParamTypes..., VarTypes...)>::Type InFunc, VarTypes... Vars)
	{
		static_assert(!std::is_const<UserClass>::value, "Attempting to bind a delegate with a const object pointer and non-const member function.");
		typedef TBaseSPMethodDelegateInstance<false, UserClass, ESPMode::Fast, TFuncType, VarTypes...> FInstance;
		return TBaseDelegate(std::make_shared<FInstance>(InUserObjectRef, InFunc, Vars...));
	}
	template <typename UserClass, typename... VarTypes>
	UE_NODISCARD static TBaseDelegate<RetValType, ParamTypes...> CreateSP(const TSharedRef<UserClass, ESPMode::Fast>& InUserObjectRef, typename TMemFunPtrType<true, UserClass, RetValType(ParamTypes..., VarTypes...)>::Type InFunc, VarTypes... Vars)
	{
		typedef TBaseSPMethodDelegateInstance<true, const UserClass, ESPMode::Fast, TFuncType, VarTypes...> FInstance;
		return TBaseDelegate(std::make_shared<FInstance>(InUserObjectRef, InFunc, Vars...));
	}
	template <typename UserClass, typename... VarTypes>
	UE_NODISCARD static TBaseDelegate<RetValType, ParamTypes...> CreateSP(UserClass* InUserObject, typename TMemFunPtrType<false, UserClass, RetValType(ParamTypes..., VarTypes...)>::Type InFunc, VarTypes... Vars)
	{
		static_assert(!std::is_const<UserClass>::value, "Attempting to bind a delegate with a const object pointer and non-const member function.");
		return CreateSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), InFunc, Vars...);
	}
	template <typename UserClass, typename... VarTypes>
	UE_NODISCARD static TBaseDelegate<RetValType, ParamTypes...> CreateSP(const UserClass* InUserObject, typename TMemFunPtrType<true, UserClass, RetValType(ParamTypes..., VarTypes...)>::Type InFunc, VarTypes... Vars)
	{
		return CreateSP(StaticCastSharedRef<const UserClass>(InUserObject->AsShared()), InFunc, Vars...);
	}

	TBaseDelegate() = default;

	bool IsBound() const { return Instance != nullptr && Instance->IsSafeToExecute(); }
	void Unbind() { Instance.reset(); }

	RetValType Execute(ParamTypes... Params) const
	{
		check(IsBound());
		return Instance->Execute(std::forward<ParamTypes>(Params)...);
	}

	template <typename R = RetValType>
	typename std::enable_if<std::is_void<R>::value, bool>::type ExecuteIfBound(ParamTypes... Params) const
	{
		if (!IsBound())
		{
			return false;
		}
		Instance->Execute(std::forward<ParamTypes>(Params)...);
		return true;
	}

private:
	explicit TBaseDelegate(std::shared_ptr<const IBaseDelegateInstance<TFuncType>> InInstance)
		: Instance(std::move(InInstance))
	{
	}

	std::shared_ptr<const IBaseDelegateInstance<TFuncType>> Instance;
};

template <typename WrappedRetValType, typename... ParamTypes>
class TMulticastDelegate;

// Multicast delegate: every binding is called, in the order it was added; a binding whose object is gone is
// skipped.
template <typename... ParamTypes>
class TMulticastDelegate<void, ParamTypes...>
{
public:
	typedef TBaseDelegate<void, ParamTypes...> FDelegate;

	template <typename FunctorType, typename... VarTypes>
	FDelegateHandle AddLambda(FunctorType&& InFunctor, VarTypes... Vars)
	{
		const FDelegateHandle Handle(FDelegateHandle::GenerateNewHandle);
		Bindings.push_back({Handle, FDelegate::CreateLambda(std::forward<FunctorType>(InFunctor), Vars...)});
		return Handle;
	}

	bool Remove(FDelegateHandle Handle)
	{
		for (auto It = Bindings.begin(); It != Bindings.end(); ++It)
		{
			if (It->first == Handle)
			{
				Bindings.erase(It);
				return true;
			}
		}
		return false;
	}

	void Broadcast(ParamTypes... Params) const
	{
		// A binding may add or remove others while it runs.
		const std::vector<std::pair<FDelegateHandle, FDelegate>> Current = Bindings;
		for (const std::pair<FDelegateHandle, FDelegate>& Binding : Current)
		{
			Binding.second.ExecuteIfBound(Params...);
		}
	}

private:
	std::vector<std::pair<FDelegateHandle, FDelegate>> Bindings;
};
