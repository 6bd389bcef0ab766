#pragma once

// The stand-in compiles the module as Windows software: TCHAR is wchar_t and the Windows branch is taken.
#include <cstddef>
#include <cstdint>

#define PLATFORM_WINDOWS 1

typedef uint8_t uint8;
typedef uint32_t uint32;
typedef uint64_t uint64;
typedef int32_t int32;
typedef int64_t int64;
typedef char ANSICHAR;
typedef wchar_t TCHAR;

#define TEXT_PASTE(x) L##x
#define TEXT(x) TEXT_PASTE(x)

#define CORE_API
#define SLATE_API
#define SLATECORE_API
#define COREUOBJECT_API
#define APPLICATIONCORE_API
#define UNREALED_API
#define PROJECTS_API
#define UE_NODISCARD [[nodiscard]]
// What a module exports from its binary; the engine's Linux build marks such symbols visible.
#define DLLEXPORT __attribute__((visibility("default")))
