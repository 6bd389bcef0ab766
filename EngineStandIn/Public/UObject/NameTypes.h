#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

// Compares without case and keeps the spelling it was made with.
class FName
{
public:
	FName() = default;
	FName(const TCHAR* Name)
		: Text(Name) {}
	FName(const ANSICHAR* Name)
		: Text(Name) {}
	explicit FName(const FString& Name)
		: Text(Name) {}

	FString ToString() const { return Text; }
	bool IsNone() const { return Text.IsEmpty(); }
	bool operator==(const FName& Other) const { return Text == Other.Text; }
	bool operator!=(const FName& Other) const { return !(Text == Other.Text); }

private:
	FString Text;
};

#define NAME_None FName()
