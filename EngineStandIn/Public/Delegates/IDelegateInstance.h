#pragma once

#include "CoreTypes.h"

// Names one binding of a multicast delegate, so that it can be removed again.
class FDelegateHandle
{
public:
	FDelegateHandle()
		: ID(0) {}

	bool IsValid() const { return ID != 0; }
	void Reset() { ID = 0; }

	bool operator==(const FDelegateHandle& Other) const { return ID == Other.ID; }
	bool operator!=(const FDelegateHandle& Other) const { return ID != Other.ID; }

private:
	friend struct StandInDelegateHandle;

	uint64_t ID;
};

struct StandInDelegateHandle
{
	static FDelegateHandle Next()
	{
		static uint64_t LastID = 0;
		FDelegateHandle Handle;
		Handle.ID = ++LastID;
		return Handle;
	}
};
