#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "UObject/UnrealNames.h"

// Compares without case and keeps the spelling it was made with.
class FName
{
public:
	FName() = default;
	// Only NAME_None is known here; it is the empty name.
	FName(EName Ename) {}
	FName(const TCHAR* Name)
		: Text(Name) {}
	FName(const ANSICHAR* Name)
		: Text(Name) {}
	explicit FName(const FString& Name)
		: Text(Name) {}

	FString ToString() const { return Text; }
	bool operator==(FName Other) const { return Text == Other.Text; }
	bool operator!=(FName Other) const { return !(Text == Other.Text); }

private:
	FString Text;
};
