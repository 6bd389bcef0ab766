#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Types/SlateEnums.h"

class SWidget;

DECLARE_DELEGATE_RetVal(FReply, FOnClicked);
DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FOnGetContent);
DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&);
DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type);

template <typename ArgumentType>
class TSlateDelegates
{
public:
	DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SWidget>, FOnGenerateWidget, ArgumentType);
	DECLARE_DELEGATE_TwoParams(FOnSelectionChanged, ArgumentType, ESelectInfo::Type);
};
