#pragma once

#include "CoreTypes.h"
#include <functional>

// Both over std::function: the module only needs their call semantics.
template <typename FuncType>
class TFunctionRef;
template <typename FuncType>
class TFunction;

template <typename Ret, typename... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	template <typename FunctorType>
	TFunctionRef(FunctorType&& Functor)
		: Callable(std::forward<FunctorType>(Functor)) {}
	Ret operator()(ParamTypes... Params) const { return Callable(std::forward<ParamTypes>(Params)...); }

private:
	std::function<Ret(ParamTypes...)> Callable;
};

template <typename Ret, typename... ParamTypes>
class TFunction<Ret(ParamTypes...)>
{
public:
	TFunction() = default;
	TFunction(std::nullptr_t) {}
	template <typename FunctorType>
	TFunction(FunctorType&& Functor)
		: Callable(std::forward<FunctorType>(Functor)) {}
	Ret operator()(ParamTypes... Params) const { return Callable(std::forward<ParamTypes>(Params)...); }
	explicit operator bool() const { return (bool)Callable; }

private:
	std::function<Ret(ParamTypes...)> Callable;
};
