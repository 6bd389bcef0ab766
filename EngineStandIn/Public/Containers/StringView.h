#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

template <typename CharType>
class TStringView
{
public:
	TStringView() = default;
	TStringView(const CharType* InData)
		: DataPtr(InData), Size(InData ? (int32)std::char_traits<CharType>::length(InData) : 0) {}
	TStringView(const CharType* InData, int32 InSize)
		: DataPtr(InData), Size(InSize) {}
	TStringView(const FString& InString)
		: DataPtr(*InString), Size(InString.Len()) {}

	const CharType* GetData() const { return DataPtr; }
	int32 Len() const { return Size; }
	bool IsEmpty() const { return Size == 0; }

private:
	const CharType* DataPtr = nullptr;
	int32 Size = 0;
};

typedef TStringView<TCHAR> FStringView;
