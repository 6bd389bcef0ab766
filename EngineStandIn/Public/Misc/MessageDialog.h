#pragma once

#include "CoreTypes.h"
#include "Internationalization/Text.h"

namespace EAppMsgType
{
	enum Type
	{
		Ok,
		YesNo,
		OkCancel,
		YesNoCancel,
		CancelRetryContinue,
		YesNoYesAllNoAll,
		YesNoYesAllNoAllCancel,
		YesNoYesAll,
	};
}

namespace EAppReturnType
{
	enum Type
	{
		No,
		Yes,
		YesAll,
		NoAll,
		Cancel,
		Ok,
		Retry,
		Continue,
	};
}

struct CORE_API FMessageDialog
{
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, const FText& Message, const FText* OptTitle = nullptr);
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText* OptTitle = nullptr);
};
