#pragma once

#include "CoreTypes.h"

enum EName
{
	NAME_None = 0,
};
