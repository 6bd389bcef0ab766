#pragma once

#include "CoreMinimal.h"

class FReply
{
public:
	static FReply Handled() { return FReply(true); }
	static FReply Unhandled() { return FReply(false); }

	bool IsEventHandled() const { return bIsHandled; }

private:
	explicit FReply(bool bInIsHandled)
		: bIsHandled(bInIsHandled) {}

	bool bIsHandled;
};
