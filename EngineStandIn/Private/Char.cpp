#include "Misc/Char.h"
#include "Common/WideCharacterClasses.h"

template <>
bool TChar<TCHAR>::IsAlpha(TCHAR Char)
{
	return WideCharacterClasses::IsLetter(Char);
}

template <>
bool TChar<TCHAR>::IsAlnum(TCHAR Char)
{
	return WideCharacterClasses::IsLetterOrDigit(Char);
}
