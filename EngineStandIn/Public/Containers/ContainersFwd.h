#pragma once

#include "CoreTypes.h"

// The containers' allocator and key-function parameters, named with the engine's defaults so that a container
// type is spelt as in the engine. The stand-in's containers keep their elements in standard containers and
// ignore these parameters, so the policies are only declared.
template <int IndexSize>
class TSizedDefaultAllocator;
using FDefaultAllocator = TSizedDefaultAllocator<32>;
class FDefaultSetAllocator;

// Spelt with the parameter names of the definitions.
template <typename ElementType, typename InAllocatorType = FDefaultAllocator>
class TArray;
template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs;
template <typename KeyType, typename ValueType, typename SetAllocator = FDefaultSetAllocator, typename KeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, false>>
class TMap;
