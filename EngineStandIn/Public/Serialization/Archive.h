#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

// Only the archive's error state: the archive derives from it privately and makes its calls public again.
class CORE_API FArchiveState
{
private:
	friend class FArchive;

	FArchiveState() = default;
	virtual ~FArchiveState() = 0;

public:
	void SetError() { ArIsError = true; }
	bool IsError() const { return ArIsError; }

private:
	bool ArIsError = false;
};

inline FArchiveState::~FArchiveState() {}

// Only the byte sink of the engine's archive: the stand-in writes files through it and nothing else.
class CORE_API FArchive : private FArchiveState
{
public:
	FArchive() = default;
	~FArchive() = default;

	virtual void Serialize(void* V, int64 Length) {}
	using FArchiveState::SetError;
	virtual bool Close() { return !IsError(); }
	using FArchiveState::IsError;
};
