#pragma once

#include "CoreTypes.h"
#include <type_traits>

// A cast to an rvalue that, unlike std::move, refuses what moving would not change: a temporary, whose
// move is already implied, or a const object, which would silently be copied.
template <typename T>
typename std::remove_reference<T>::type&& MoveTemp(T&& Obj)
{
	typedef typename std::remove_reference<T>::type CastType;
	static_assert(std::is_lvalue_reference<T>::value, "MoveTemp called on an rvalue");
	static_assert(!std::is_same<CastType&, const CastType&>::value, "MoveTemp called on a const object");
	return (CastType &&) Obj;
}
