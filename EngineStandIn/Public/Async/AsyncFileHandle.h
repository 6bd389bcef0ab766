#pragma once

#include "CoreTypes.h"

// What IPlatformFile::OpenAsyncRead hands out. Nothing here reads through it, so only its lifetime is
// mirrored: the caller deletes it.
class CORE_API IAsyncReadFileHandle
{
public:
	virtual ~IAsyncReadFileHandle() {}
};
