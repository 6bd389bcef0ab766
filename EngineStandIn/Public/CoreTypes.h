#pragma once

#include "HAL/Platform.h"
