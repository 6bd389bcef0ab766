#pragma once

#include "CoreTypes.h"

// Names one binding of a multicast delegate, so that it can be removed again.
class FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle()
		: ID(0) {}

	explicit FDelegateHandle(EGenerateNewHandleType)
		: ID(GenerateNewID()) {}

	bool IsValid() const { return ID != 0; }
	void Reset() { ID = 0; }

private:
	friend bool operator==(const FDelegateHandle& Lhs, const FDelegateHandle& Rhs) { return Lhs.ID == Rhs.ID; }
	friend bool operator!=(const FDelegateHandle& Lhs, const FDelegateHandle& Rhs) { return Lhs.ID != Rhs.ID; }

	static uint64 GenerateNewID()
	{
		static uint64 LastID = 0;
		return ++LastID;
	}

	uint64 ID;
};
