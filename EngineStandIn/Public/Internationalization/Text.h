#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"
#include "Misc/Optional.h"
#include <type_traits>
#include <utility>

class FText;
class FFormatArgumentValue;

typedef TArray<FFormatArgumentValue> FFormatOrderedArguments;

// A pattern for FText::Format; "{0}", "{1}"... name the ordered arguments.
class CORE_API FTextFormat
{
public:
	FTextFormat();
	FTextFormat(const FText& InText);

private:
	friend class FText;

	FString Pattern;
};

// A text keeps the namespace and key it was made with, so that FTextInspector can tell a localised literal
// from a plain string; the display string is the English source.
class CORE_API FText
{
public:
	FText();

	static FText FromString(const FString& String);
	static const FText& GetEmpty();

	const FString& ToString() const;
	bool IsEmpty() const;

	static FText Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments);
	static FText Format(FTextFormat Fmt, FFormatOrderedArguments&& InArguments);
	template <typename... ArgTypes>
	static FText Format(FTextFormat Fmt, ArgTypes... Args);

private:
	friend class FTextInspector;
	friend class FInternationalization;

	struct FTextData;
	explicit FText(TSharedRef<const FTextData> InData);

	TSharedRef<const FTextData> Data;
};

class CORE_API FFormatArgumentValue
{
public:
	FFormatArgumentValue(const FText& Value)
		: TextValue(Value) {}

private:
	friend class FText;

	FText TextValue;
};

template <typename... ArgTypes>
FText FText::Format(FTextFormat Fmt, ArgTypes... Args)
{
	static_assert((std::is_constructible<FFormatArgumentValue, ArgTypes>::value && ...), "Invalid argument type passed to FText::Format");
	static_assert(sizeof...(Args) > 0, "FText::Format expects at least one non-format argument");

	// Picks the ordered-arguments overload rather than this template again.
	FText (*CorrectFormat)(FTextFormat, FFormatOrderedArguments &&) = Format;
	return CorrectFormat(std::move(Fmt), FFormatOrderedArguments{std::move(Args)...});
}

class CORE_API FTextInspector
{
private:
	FTextInspector() {}
	~FTextInspector() {}

public:
	// Unset for texts made from strings or by formatting.
	static TOptional<FString> GetNamespace(const FText& Text);
	static TOptional<FString> GetKey(const FText& Text);
};
