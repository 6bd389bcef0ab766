#include "Internationalization/Text.h"

FText::FText()
	: Data(MakeShared<const FTextData>()) {}

FText FText::FromString(const FString& String)
{
	return FText(MakeShared<const FTextData>(FTextData{String, FString(), FString()}));
}

const FText& FText::GetEmpty()
{
	static const FText Empty;
	return Empty;
}

FText FText::StandInMakeLocalized(const TCHAR* Source, const TCHAR* Namespace, const TCHAR* Key)
{
	return FText(MakeShared<const FTextData>(FTextData{FString(Source), FString(Namespace), FString(Key)}));
}

FText FText::Format(const FText& Fmt, const FText& Arg0)
{
	return FormatOrdered(Fmt, {Arg0});
}

FText FText::Format(const FText& Fmt, const FText& Arg0, const FText& Arg1)
{
	return FormatOrdered(Fmt, {Arg0, Arg1});
}

// "{N}" takes the Nth argument; an index without an argument stays as written.
FText FText::FormatOrdered(const FText& Fmt, const TArray<FText>& Args)
{
	const FString& Pattern = Fmt.ToString();
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
			if (Close > Index + 1 && Close < Pattern.Len() && Pattern[Close] == L'}' && Args.IsValidIndex(ArgIndex))
			{
				Result += Args[ArgIndex].ToString();
				Index = Close + 1;
				continue;
			}
		}
		Result += Pattern[Index];
		++Index;
	}
	return FromString(Result);
}
