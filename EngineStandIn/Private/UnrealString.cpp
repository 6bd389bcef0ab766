#include "Containers/UnrealString.h"
#include "Containers/StringConv.h"
#include <cwchar>
#include <cwctype>

namespace
{
	// The engine folds case per character with the C locale: ASCII letters only.
	TCHAR FoldCase(TCHAR Char)
	{
		return (Char >= L'a' && Char <= L'z') ? (TCHAR)(Char - L'a' + L'A') : Char;
	}

	bool IsWhitespace(TCHAR Char)
	{
		return Char == L' ' || Char == L'\t' || Char == L'\n' || Char == L'\v' || Char == L'\f' || Char == L'\r';
	}

	bool CharsMatch(TCHAR A, TCHAR B, ESearchCase::Type SearchCase)
	{
		return SearchCase == ESearchCase::CaseSensitive ? A == B : FoldCase(A) == FoldCase(B);
	}

	bool MatchesAt(const std::wstring& Haystack, size_t Position, const TCHAR* Needle, size_t NeedleLen, ESearchCase::Type SearchCase)
	{
		if (Position + NeedleLen > Haystack.size())
		{
			return false;
		}
		for (size_t Index = 0; Index < NeedleLen; ++Index)
		{
			if (!CharsMatch(Haystack[Position + Index], Needle[Index], SearchCase))
			{
				return false;
			}
		}
		return true;
	}

	bool IsAsciiLetter(TCHAR Char)
	{
		return (Char >= L'a' && Char <= L'z') || (Char >= L'A' && Char <= L'Z');
	}

	// The first position at or after Start where Needle matches, or npos. A case-insensitive search
	// anchors on the needle's first character that only matches itself, so that the library's vectorised
	// character scan skips the positions that cannot match; paths always have a separator to anchor on.
	size_t FindForward(const std::wstring& Haystack, size_t Start, const TCHAR* Needle, size_t NeedleLen, ESearchCase::Type SearchCase)
	{
		if (Start > Haystack.size() || NeedleLen > Haystack.size() - Start)
		{
			return std::wstring::npos;
		}
		if (SearchCase == ESearchCase::CaseSensitive)
		{
			return Haystack.find(Needle, Start, NeedleLen);
		}
		const size_t LastPosition = Haystack.size() - NeedleLen;
		size_t Anchor = 0;
		while (Anchor < NeedleLen && IsAsciiLetter(Needle[Anchor]))
		{
			++Anchor;
		}
		if (Anchor == NeedleLen)
		{
			const TCHAR First = FoldCase(Needle[0]);
			for (size_t Position = Start; Position <= LastPosition; ++Position)
			{
				if (FoldCase(Haystack[Position]) == First && MatchesAt(Haystack, Position, Needle, NeedleLen, SearchCase))
				{
					return Position;
				}
			}
			return std::wstring::npos;
		}
		const TCHAR* const Begin = Haystack.data();
		const TCHAR* Cursor = Begin + Start + Anchor;
		const TCHAR* const ScanEnd = Begin + LastPosition + Anchor + 1;
		while (Cursor < ScanEnd)
		{
			const TCHAR* Hit = std::wmemchr(Cursor, Needle[Anchor], (size_t)(ScanEnd - Cursor));
			if (Hit == nullptr)
			{
				break;
			}
			const size_t Position = (size_t)(Hit - Begin) - Anchor;
			// Paths share long prefixes; their ends tell them apart sooner.
			if (FoldCase(Haystack[Position + NeedleLen - 1]) == FoldCase(Needle[NeedleLen - 1]) && MatchesAt(Haystack, Position, Needle, NeedleLen, SearchCase))
			{
				return Position;
			}
			Cursor = Hit + 1;
		}
		return std::wstring::npos;
	}

	// Every match, left to right and not overlapping, replaced into Out in whole runs; Out is untouched
	// when nothing matches, so that callers keep the original without a copy.
	int32 ReplaceAll(const std::wstring& Source, const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase, std::wstring& Out)
	{
		const size_t SearchLen = std::wcslen(SearchText);
		const TCHAR* const Replacement = ReplacementText ? ReplacementText : L"";
		const size_t ReplacementLen = std::wcslen(Replacement);
		size_t Match = FindForward(Source, 0, SearchText, SearchLen, SearchCase);
		if (Match == std::wstring::npos)
		{
			return 0;
		}
		Out.reserve(ReplacementLen <= SearchLen ? Source.size() : Source.size() + (ReplacementLen - SearchLen) * 4);
		int32 Count = 0;
		size_t Copied = 0;
		while (Match != std::wstring::npos)
		{
			Out.append(Source, Copied, Match - Copied);
			Out.append(Replacement, ReplacementLen);
			Copied = Match + SearchLen;
			++Count;
			Match = FindForward(Source, Copied, SearchText, SearchLen, SearchCase);
		}
		Out.append(Source, Copied, std::wstring::npos);
		return Count;
	}
}

FString::FString(const ANSICHAR* Str)
{
	if (Str)
	{
		for (const ANSICHAR* Char = Str; *Char; ++Char)
		{
			Data += (TCHAR)(unsigned char)*Char;
		}
	}
}

void FString::PathAppend(const TCHAR* Str, int32 StrLength)
{
	const int32 DataNum = Len();
	if (StrLength == 0)
	{
		if (DataNum > 0 && Data[(size_t)DataNum - 1] != L'/' && Data[(size_t)DataNum - 1] != L'\\')
		{
			Data += L'/';
		}
		return;
	}
	if (DataNum > 0)
	{
		if (Data[(size_t)DataNum - 1] != L'/' && Data[(size_t)DataNum - 1] != L'\\' && *Str != L'/')
		{
			Data += L'/';
		}
	}
	Data.append(Str, (size_t)StrLength);
}

FString& FString::operator/=(const TCHAR* Str)
{
	PathAppend(Str, (int32)std::wcslen(Str));
	return *this;
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	if (Data.size() != Other.Data.size())
	{
		return false;
	}
	return MatchesAt(Data, 0, Other.Data.c_str(), Other.Data.size(), SearchCase);
}

bool operator<(const FString& Lhs, const FString& Rhs)
{
	const size_t Common = std::min(Lhs.Data.size(), Rhs.Data.size());
	for (size_t Index = 0; Index < Common; ++Index)
	{
		const TCHAR A = FoldCase(Lhs.Data[Index]);
		const TCHAR B = FoldCase(Rhs.Data[Index]);
		if (A != B)
		{
			return A < B;
		}
	}
	return Lhs.Data.size() < Rhs.Data.size();
}

int32 FString::Find(const TCHAR* SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	if (SubStr == nullptr)
	{
		return INDEX_NONE;
	}
	const size_t SubLen = std::wcslen(SubStr);
	if (SubLen == 0)
	{
		if (SearchCase == ESearchCase::IgnoreCase)
		{
			return INDEX_NONE;
		}
		return SearchDir == ESearchDir::FromStart ? (StartPosition == INDEX_NONE ? 0 : StartPosition) : INDEX_NONE;
	}
	if (SearchDir == ESearchDir::FromStart)
	{
		size_t Start = 0;
		if (StartPosition != INDEX_NONE && Len() > 0)
		{
			Start = (size_t)std::max(0, std::min(StartPosition, Len() - 1));
		}
		const size_t Position = FindForward(Data, Start, SubStr, SubLen, SearchCase);
		return Position == std::wstring::npos ? INDEX_NONE : (int32)Position;
	}
	int32 LastStart = Len() - (int32)SubLen;
	if (StartPosition != INDEX_NONE)
	{
		LastStart = std::min(LastStart, StartPosition - (int32)SubLen);
	}
	for (int32 Position = LastStart; Position >= 0; --Position)
	{
		if (MatchesAt(Data, (size_t)Position, SubStr, SubLen, SearchCase))
		{
			return Position;
		}
	}
	return INDEX_NONE;
}

bool FString::StartsWith(const FString& Prefix, ESearchCase::Type SearchCase) const
{
	return !Prefix.IsEmpty() && MatchesAt(Data, 0, *Prefix, (size_t)Prefix.Len(), SearchCase);
}

bool FString::EndsWith(const FString& Suffix, ESearchCase::Type SearchCase) const
{
	return !Suffix.IsEmpty() && Len() >= Suffix.Len() && MatchesAt(Data, (size_t)(Len() - Suffix.Len()), *Suffix, (size_t)Suffix.Len(), SearchCase);
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const&
{
	if (IsEmpty() || From == nullptr || *From == 0)
	{
		return *this;
	}
	std::wstring Replaced;
	return ReplaceAll(Data, From, To, SearchCase, Replaced) > 0 ? FString(std::move(Replaced)) : *this;
}

int32 FString::ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase)
{
	if (IsEmpty() || SearchText == nullptr || *SearchText == 0)
	{
		return 0;
	}
	std::wstring Replaced;
	const int32 Count = ReplaceAll(Data, SearchText, ReplacementText, SearchCase, Replaced);
	if (Count > 0)
	{
		Data = std::move(Replaced);
	}
	return Count;
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty) const
{
	OutArray.Reset();
	check(pchDelim != nullptr);
	const size_t DelimLen = std::wcslen(pchDelim);
	if (Data.empty() || DelimLen == 0)
	{
		if (!Data.empty())
		{
			OutArray.Add(*this);
		}
		return OutArray.Num();
	}
	size_t PieceStart = 0;
	for (;;)
	{
		const size_t Found = Data.find(pchDelim, PieceStart);
		const size_t PieceEnd = Found == std::wstring::npos ? Data.size() : Found;
		if (!InCullEmpty || PieceEnd > PieceStart)
		{
			OutArray.Add(FString(Data.substr(PieceStart, PieceEnd - PieceStart)));
		}
		if (Found == std::wstring::npos)
		{
			break;
		}
		PieceStart = Found + DelimLen;
	}
	return OutArray.Num();
}

void FString::TrimStartInline()
{
	size_t First = 0;
	while (First < Data.size() && IsWhitespace(Data[First]))
	{
		++First;
	}
	Data.erase(0, First);
}

void FString::TrimEndInline()
{
	size_t End = Data.size();
	while (End > 0 && IsWhitespace(Data[End - 1]))
	{
		--End;
	}
	Data.erase(End);
}

void FString::TrimStartAndEndInline()
{
	TrimEndInline();
	TrimStartInline();
}

FString FString::Left(int32 Count) const&
{
	return FString(Data.substr(0, (size_t)std::max(0, std::min(Count, Len()))));
}

FString FString::Mid(int32 Start, int32 Count) const&
{
	const int32 ClampedStart = std::max(0, std::min(Start, Len()));
	const int32 ClampedCount = std::max(0, std::min(Count, Len() - ClampedStart));
	return FString(Data.substr((size_t)ClampedStart, (size_t)ClampedCount));
}

FString FString::Right(int32 Count) const&
{
	const int32 Clamped = std::max(0, std::min(Count, Len()));
	return FString(Data.substr(Data.size() - (size_t)Clamped));
}

FString FString::Join(const TArray<FString>& Items, const TCHAR* Separator)
{
	FString Result;
	for (int32 Index = 0; Index < Items.Num(); ++Index)
	{
		if (Index > 0)
		{
			Result += Separator;
		}
		Result += Items[Index];
	}
	return Result;
}

FString FString::PrintfImpl(const TCHAR* Fmt, ...)
{
	va_list Args;
	va_start(Args, Fmt);
	FString Result = StandInFormat::FormatVarArgs(Fmt, Args);
	va_end(Args);
	return Result;
}

namespace StandInFormat
{
	// The engine's formatter: %s takes a TCHAR string, the numeric conversions follow the C library, and
	// the output grows as needed.
	FString FormatVarArgs(const TCHAR* Fmt, va_list Args)
	{
		// One buffer per thread, kept between calls: a line is built without regrowing from empty, and the
		// result is then allocated once at its exact size.
		thread_local std::wstring Out;
		Out.clear();
		const TCHAR* Cursor = Fmt;
		while (*Cursor)
		{
			if (*Cursor != L'%')
			{
				const TCHAR* RunEnd = Cursor;
				while (*RunEnd && *RunEnd != L'%')
				{
					++RunEnd;
				}
				Out.append(Cursor, (size_t)(RunEnd - Cursor));
				Cursor = RunEnd;
				continue;
			}
			const TCHAR* DirectiveStart = Cursor++;
			if (*Cursor == L'%')
			{
				Out += L'%';
				++Cursor;
				continue;
			}
			std::wstring Flags;
			while (*Cursor && std::wcschr(L"-+ #0", *Cursor))
			{
				Flags += *Cursor++;
			}
			int Width = -1;
			if (*Cursor == L'*')
			{
				Width = va_arg(Args, int);
				++Cursor;
			}
			else if (std::iswdigit(*Cursor))
			{
				Width = 0;
				while (std::iswdigit(*Cursor))
				{
					Width = Width * 10 + (*Cursor++ - L'0');
				}
			}
			int Precision = -1;
			if (*Cursor == L'.')
			{
				++Cursor;
				Precision = 0;
				if (*Cursor == L'*')
				{
					Precision = va_arg(Args, int);
					++Cursor;
				}
				else
				{
					while (std::iswdigit(*Cursor))
					{
						Precision = Precision * 10 + (*Cursor++ - L'0');
					}
				}
			}
			bool bLong64 = false;
			while (*Cursor == L'l' || *Cursor == L'h' || *Cursor == L'z' || *Cursor == L'I' || *Cursor == L'L')
			{
				if (*Cursor == L'I' && Cursor[1] == L'6' && Cursor[2] == L'4')
				{
					bLong64 = true;
					Cursor += 3;
					continue;
				}
				if (*Cursor == L'l' && Cursor[1] == L'l')
				{
					bLong64 = true;
					++Cursor;
				}
				if (*Cursor == L'z')
				{
					bLong64 = true;
				}
				++Cursor;
			}
			const TCHAR Conversion = *Cursor;
			if (Conversion == 0)
			{
				Out.append(DirectiveStart);
				break;
			}
			++Cursor;

			if ((Conversion == L's' || Conversion == L'S') && Width < 0 && Precision < 0)
			{
				const TCHAR* Str = va_arg(Args, const TCHAR*);
				Out += Str ? Str : L"(null)";
				continue;
			}
			std::wstring CFormat = L"%" + Flags;
			if (Width >= 0)
			{
				CFormat += std::to_wstring(Width);
			}
			if (Precision >= 0)
			{
				CFormat += L"." + std::to_wstring(Precision);
			}
			TCHAR Buffer[512];
			switch (Conversion)
			{
			case L's':
			case L'S':
			{
				const TCHAR* Str = va_arg(Args, const TCHAR*);
				std::wstring Piece = Str ? Str : L"(null)";
				if (Precision >= 0 && (size_t)Precision < Piece.size())
				{
					Piece.resize((size_t)Precision);
				}
				if (Width > 0 && (size_t)Width > Piece.size())
				{
					const std::wstring Padding((size_t)Width - Piece.size(), L' ');
					Piece = Flags.find(L'-') != std::wstring::npos ? Piece + Padding : Padding + Piece;
				}
				Out += Piece;
				break;
			}
			case L'c':
				Out += (TCHAR)va_arg(Args, int);
				break;
			case L'd':
			case L'i':
				CFormat += bLong64 ? L"lld" : L"d";
				if (bLong64)
				{
					std::swprintf(Buffer, 512, CFormat.c_str(), va_arg(Args, long long));
				}
				else
				{
					std::swprintf(Buffer, 512, CFormat.c_str(), va_arg(Args, int));
				}
				Out += Buffer;
				break;
			case L'u':
			case L'x':
			case L'X':
			case L'o':
				CFormat += bLong64 ? L"ll" : L"";
				CFormat += Conversion;
				if (bLong64)
				{
					std::swprintf(Buffer, 512, CFormat.c_str(), va_arg(Args, unsigned long long));
				}
				else
				{
					std::swprintf(Buffer, 512, CFormat.c_str(), va_arg(Args, unsigned int));
				}
				Out += Buffer;
				break;
			case L'f':
			case L'F':
			case L'e':
			case L'E':
			case L'g':
			case L'G':
				CFormat += Conversion;
				std::swprintf(Buffer, 512, CFormat.c_str(), va_arg(Args, double));
				Out += Buffer;
				break;
			case L'p':
				std::swprintf(Buffer, 512, L"%p", va_arg(Args, void*));
				Out += Buffer;
				break;
			default:
				Out.append(DirectiveStart, (size_t)(Cursor - DirectiveStart));
				break;
			}
		}
		return FString((int32)Out.size(), Out.c_str());
	}
}
