#include "Internationalization/Text.h"
#include "Internationalization/Internationalization.h"
#include "StandIn/World.h"

struct FText::FTextData
{
	FString Display;
	// Set for localised literals only.
	TOptional<FString> Namespace;
	TOptional<FString> Key;
};

FText::FText()
	: Data(MakeShared<const FTextData>()) {}

FText::FText(TSharedRef<const FTextData> InData)
	: Data(InData) {}

FText FText::FromString(const FString& String)
{
	return FText(MakeShared<const FTextData>(FTextData{String, TOptional<FString>(), TOptional<FString>()}));
}

const FText& FText::GetEmpty()
{
	static const FText Empty;
	return Empty;
}

const FString& FText::ToString() const
{
	return Data->Display;
}

bool FText::IsEmpty() const
{
	return Data->Display.IsEmpty();
}

FTextFormat::FTextFormat() {}

FTextFormat::FTextFormat(const FText& InText)
	: Pattern(InText.ToString()) {}

FText FText::Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments)
{
	return Format(std::move(Fmt), FFormatOrderedArguments(InArguments));
}

// "{N}" takes the Nth argument; an index without an argument stays as written.
FText FText::Format(FTextFormat Fmt, FFormatOrderedArguments&& InArguments)
{
	const FString& Pattern = Fmt.Pattern;
	FString Result;
	int32 Index = 0;
	while (Index < Pattern.Len())
	{
		if (Pattern[Index] == L'{')
		{
			int32 Close = Index + 1;
			int32 ArgIndex = 0;
			while (Close < Pattern.Len() && Pattern[Close] >= L'0' && Pattern[Close] <= L'9')
			{
				ArgIndex = ArgIndex * 10 + (Pattern[Close] - L'0');
				++Close;
			}
			if (Close > Index + 1 && Close < Pattern.Len() && Pattern[Close] == L'}' && InArguments.IsValidIndex(ArgIndex))
			{
				Result += InArguments[ArgIndex].TextValue.ToString();
				Index = Close + 1;
				continue;
			}
		}
		Result += Pattern[Index];
		++Index;
	}
	return FromString(Result);
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	return Text.Data->Namespace;
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	return Text.Data->Key;
}

FText FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(const TCHAR* InTextLiteral, const TCHAR* InNamespace, const TCHAR* InKey)
{
	const auto& Translations = StandIn::GetWorld().Translations;
	const auto Translation = Translations.find({StandIn::ToUtf8(InNamespace), StandIn::ToUtf8(InKey)});
	const FString Display = Translation != Translations.end() ? StandIn::FromUtf8(Translation->second) : FString(InTextLiteral);
	return FText(MakeShared<const FText::FTextData>(FText::FTextData{Display, FString(InNamespace), FString(InKey)}));
}
