#pragma once

#include "CoreTypes.h"

// Whether T is an array of ArrType or a reference to one, as a string literal is.
template <typename T, typename ArrType>
struct TIsArrayOrRefOfType
{
	enum
	{
		Value = false
	};
};
template <typename ArrType, unsigned int N>
struct TIsArrayOrRefOfType<ArrType[N], ArrType>
{
	enum
	{
		Value = true
	};
};
template <typename ArrType, unsigned int N>
struct TIsArrayOrRefOfType<const ArrType[N], ArrType>
{
	enum
	{
		Value = true
	};
};
template <typename ArrType, unsigned int N>
struct TIsArrayOrRefOfType<const ArrType (&)[N], ArrType>
{
	enum
	{
		Value = true
	};
};
template <typename ArrType, unsigned int N>
struct TIsArrayOrRefOfType<ArrType (&)[N], ArrType>
{
	enum
	{
		Value = true
	};
};
