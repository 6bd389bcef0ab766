#pragma once

#include "CoreTypes.h"

// Single characters classified. On Windows the engine hands wide characters to the C runtime's iswalpha
// and friends, which answer from Unicode's tables: "é" and "鉄" are letters.
template <typename CharType>
struct TChar
{
	static bool IsAlpha(CharType Char);
	static bool IsAlnum(CharType Char);
};

template <>
bool TChar<TCHAR>::IsAlpha(TCHAR Char);
template <>
bool TChar<TCHAR>::IsAlnum(TCHAR Char);

typedef TChar<TCHAR> FChar;
