/// @file
/// The export macros: the one place besides WinTypes.h where a public header asks which system it is compiled for.
#pragma once

#if defined(VYR_STATIC)
// All parts are linked into one library, which exports others' names.
#define VYR_EXPORT
#define VYR_IMPORT
#elif defined(_WIN32)
#define VYR_EXPORT __declspec(dllexport)
#define VYR_IMPORT __declspec(dllimport)
#else
#define VYR_EXPORT __attribute__((visibility("default")))
#define VYR_IMPORT __attribute__((visibility("default")))
#endif

#if defined(VyrPlatform_EXPORTS)
#define VYR_PLATFORM_API VYR_EXPORT
#else
#define VYR_PLATFORM_API VYR_IMPORT
#endif
