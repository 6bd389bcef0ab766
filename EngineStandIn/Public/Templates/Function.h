#pragma once

#include "CoreTypes.h"
#include <functional>
#include <type_traits>

// Both over std::function: the module only needs their call semantics.
template <typename FuncType>
class TFunctionRef;
template <typename FuncType>
class TFunction;

template <typename Ret, typename... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	// Not for copies of a TFunctionRef itself, which the copy constructor takes, as in the engine.
	template <typename FunctorType, typename = typename std::enable_if<!std::is_same<typename std::decay<FunctorType>::type, TFunctionRef>::value>::type>
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
	// Not for copies of a TFunction itself: a non-const one would otherwise wrap itself, endlessly.
	template <typename FunctorType, typename = typename std::enable_if<!std::is_same<typename std::decay<FunctorType>::type, TFunction>::value>::type>
	TFunction(FunctorType&& Functor)
		: Callable(std::forward<FunctorType>(Functor)) {}
	Ret operator()(ParamTypes... Params) const { return Callable(std::forward<ParamTypes>(Params)...); }
	explicit operator bool() const { return (bool)Callable; }

private:
	std::function<Ret(ParamTypes...)> Callable;
};
