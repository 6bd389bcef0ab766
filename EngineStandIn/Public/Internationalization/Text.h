#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"

// A text keeps the namespace and key it was made with, so a test can tell a localised literal from a
// plain string; the display string is the English source.
class FText
{
public:
	FText();

	static FText FromString(const FString& String);
	static const FText& GetEmpty();
	static FText Format(const FText& Fmt, const FText& Arg0);
	static FText Format(const FText& Fmt, const FText& Arg0, const FText& Arg1);

	const FString& ToString() const { return Data->Display; }
	bool IsEmpty() const { return Data->Display.IsEmpty(); }
	bool EqualTo(const FText& Other) const { return Data->Display.Equals(Other.Data->Display); }

	// Empty for texts made from strings or by formatting.
	const FString& GetNamespace() const { return Data->Namespace; }
	const FString& GetKey() const { return Data->Key; }

	static FText StandInMakeLocalized(const TCHAR* Source, const TCHAR* Namespace, const TCHAR* Key);

private:
	struct FTextData
	{
		FString Display;
		FString Namespace;
		FString Key;
	};
	explicit FText(TSharedRef<const FTextData> InData)
		: Data(InData) {}
	static FText FormatOrdered(const FText& Fmt, const TArray<FText>& Args);

	TSharedRef<const FTextData> Data;
};

class FInternationalization
{
public:
	static FText ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(const TCHAR* InTextLiteral, const TCHAR* InNamespace, const TCHAR* InKey)
	{
		return FText::StandInMakeLocalized(InTextLiteral, InNamespace, InKey);
	}
};

#define NSLOCTEXT(InNamespace, InKey, InTextLiteral) FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(TEXT(InTextLiteral), TEXT(InNamespace), TEXT(InKey))
#define LOCTEXT(InKey, InTextLiteral) FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(TEXT(InTextLiteral), TEXT(LOCTEXT_NAMESPACE), TEXT(InKey))
