#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Containers/Array.h"
#include "Templates/IsValidVariadicFunctionArg.h"
#include "Templates/IsArrayOrRefOfType.h"
#include <cstdarg>
#include <string>
#include <type_traits>
#include <utility>

namespace ESearchCase
{
	enum Type
	{
		CaseSensitive,
		IgnoreCase,
	};
}

namespace ESearchDir
{
	enum Type
	{
		FromStart,
		FromEnd,
	};
}

class FString
{
public:
	FString() = default;
	FString(const TCHAR* Str)
		: Data(Str ? Str : L"") {}
	FString(int32 InCount, const TCHAR* InSrc)
		: Data(InSrc, (size_t)InCount) {}
	explicit FString(const ANSICHAR* Str);

	const TCHAR* operator*() const { return Data.c_str(); }
	int32 Len() const { return (int32)Data.size(); }
	bool IsEmpty() const { return Data.empty(); }
	void Empty(int32 Slack = 0)
	{
		Data.clear();
		Data.reserve((size_t)Slack);
	}
	void Reset(int32 NewReservedSize = 0)
	{
		Data.clear();
		Data.reserve((size_t)NewReservedSize);
	}
	TCHAR& operator[](int32 Index)
	{
		check(Index >= 0 && Index < Len());
		return Data[(size_t)Index];
	}
	const TCHAR& operator[](int32 Index) const
	{
		check(Index >= 0 && Index < Len());
		return Data[(size_t)Index];
	}

	FString& Append(const FString& Other)
	{
		Data += Other.Data;
		return *this;
	}
	// A null-terminated string: TCHAR text only, the stand-in converts no other encoding.
	template <class CharType>
	FString& Append(CharType* Str)
	{
		Data += Str;
		return *this;
	}
	template <typename StrType>
	FString& operator+=(StrType&& Str)
	{
		return Append(std::forward<StrType>(Str));
	}
	// A null character is not appended: the engine's string never holds one.
	FString& operator+=(TCHAR Char)
	{
		if (Char != 0)
		{
			Data += Char;
		}
		return *this;
	}
	friend FString operator+(const FString& Lhs, const FString& Rhs) { return FString(Lhs.Data + Rhs.Data); }
	friend FString operator+(const FString& Lhs, const TCHAR* Rhs) { return FString(Lhs.Data + Rhs); }
	friend FString operator+(const TCHAR* Lhs, const FString& Rhs) { return FString(Lhs + Rhs.Data); }

	// Path concatenation: one '/' between the parts unless either side already has one.
	void PathAppend(const TCHAR* Str, int32 StrLength);
	FString& operator/=(const TCHAR* Str);
	FString& operator/=(const FString& Str) { return *this /= *Str; }
	friend FString operator/(const FString& Lhs, const TCHAR* Rhs)
	{
		FString Result(Lhs);
		Result /= Rhs;
		return Result;
	}
	friend FString operator/(const FString& Lhs, const FString& Rhs) { return Lhs / *Rhs; }
	friend FString operator/(const TCHAR* Lhs, const FString& Rhs) { return FString(Lhs) / *Rhs; }

	// Comparison ignores case, as the engine's FString does.
	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	friend bool operator==(const FString& Lhs, const FString& Rhs) { return Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
	friend bool operator==(const FString& Lhs, const TCHAR* Rhs) { return Lhs.Equals(FString(Rhs), ESearchCase::IgnoreCase); }
	friend bool operator==(const TCHAR* Lhs, const FString& Rhs) { return Rhs.Equals(FString(Lhs), ESearchCase::IgnoreCase); }
	friend bool operator!=(const FString& Lhs, const FString& Rhs) { return !(Lhs == Rhs); }
	friend bool operator!=(const FString& Lhs, const TCHAR* Rhs) { return !(Lhs == Rhs); }
	friend bool operator<(const FString& Lhs, const FString& Rhs);

	int32 Find(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	int32 Find(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(*SubStr, SearchCase, SearchDir, StartPosition);
	}
	bool Contains(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}
	bool Contains(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(*SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}
	bool StartsWith(const FString& Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool EndsWith(const FString& Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const&;
	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) && { return static_cast<const FString&>(*this).Replace(From, To, SearchCase); }
	int32 ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty = true) const;

	void TrimStartAndEndInline();
	void TrimStartInline();
	void TrimEndInline();
	FString TrimStartAndEnd() const&
	{
		FString Result(*this);
		Result.TrimStartAndEndInline();
		return Result;
	}
	FString TrimStartAndEnd() &&
	{
		TrimStartAndEndInline();
		return std::move(*this);
	}

	FString Left(int32 Count) const&;
	FString Left(int32 Count) && { return static_cast<const FString&>(*this).Left(Count); }
	FString Mid(int32 Start, int32 Count = 0x7fffffff) const&;
	FString Mid(int32 Start, int32 Count = 0x7fffffff) && { return static_cast<const FString&>(*this).Mid(Start, Count); }
	FString Right(int32 Count) const&;
	FString Right(int32 Count) && { return static_cast<const FString&>(*this).Right(Count); }

	static FString Join(const TArray<FString>& Items, const TCHAR* Separator);

	template <typename FmtType, typename... Types>
	static FString Printf(const FmtType& Fmt, Types... Args)
	{
		static_assert(TIsArrayOrRefOfType<FmtType, TCHAR>::Value, "Formatting string must be a TCHAR array.");
		static_assert((TIsValidVariadicFunctionArg<Types>::Value && ...), "Invalid argument(s) passed to FString::Printf");
		return PrintfImpl(Fmt, Args...);
	}

private:
	explicit FString(std::wstring&& InData)
		: Data(std::move(InData)) {}
	static FString PrintfImpl(const TCHAR* Fmt, ...);

	std::wstring Data;
};

// The engine formatter behind Printf and UE_LOG.
namespace StandInFormat
{
	FString FormatVarArgs(const TCHAR* Fmt, va_list Args);
}
