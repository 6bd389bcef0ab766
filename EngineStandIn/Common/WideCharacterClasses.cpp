#include "WideCharacterClasses.h"
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cwctype>
#include <locale.h>

namespace
{
	// The runtime's iswalpha and friends answer from Unicode's tables in every locale; glibc does so
	// only in a UTF-8 locale, so one is opened for these calls alone and the process's own stays as it is.
	// C.UTF-8 is part of every Debian system (libc-bin).
	locale_t UnicodeLocale()
	{
		static const locale_t Locale = [] {
			const locale_t Opened = newlocale(LC_CTYPE_MASK, "C.UTF-8", (locale_t)0);
			if (Opened == (locale_t)0)
			{
				std::fputs("The C.UTF-8 locale is missing; characters cannot be classified as on Windows.\n", stderr);
				std::abort();
			}
			return Opened;
		}();
		return Locale;
	}
}

namespace WideCharacterClasses
{
	bool IsLetter(wchar_t Char)
	{
		return iswalpha_l((wint_t)Char, UnicodeLocale()) != 0;
	}

	bool IsLetterOrDigit(wchar_t Char)
	{
		return iswalnum_l((wint_t)Char, UnicodeLocale()) != 0;
	}

	wchar_t ToUpperCase(wchar_t Char)
	{
		if ((unsigned)Char < 0x80)
		{
			return Char >= L'a' && Char <= L'z' ? (wchar_t)(Char - L'a' + L'A') : Char;
		}
		return (wchar_t)towupper_l((wint_t)Char, UnicodeLocale());
	}
}
