#pragma once

#include "CoreTypes.h"
#include "Logging/LogMacros.h"

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
