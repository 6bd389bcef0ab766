#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Types/SlateEnums.h"

class SWidget;

DECLARE_DELEGATE_RetVal(FReply, FOnClicked)
	DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type)

		template <typename ArgumentType>
		class TSlateDelegates
{
public:
	typedef TDelegate<TSharedRef<SWidget>(ArgumentType)> FOnGenerateWidget;
	typedef TDelegate<void(ArgumentType, ESelectInfo::Type)> FOnSelectionChanged;
};
