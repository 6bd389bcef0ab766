#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

// Only the byte sink of the engine's archive: the stand-in writes files through it and nothing else.
class CORE_API FArchive
{
public:
	virtual ~FArchive() {}
	virtual void Serialize(void* V, int64 Length) {}
	virtual bool Close() { return !ArIsError; }
	bool IsError() const { return ArIsError; }
	void SetError() { ArIsError = true; }

private:
	bool ArIsError = false;
};
