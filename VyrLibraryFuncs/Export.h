/// @file
/// The export macro of this library, and the tests' access to private operations.
#pragma once

#include <VyrPlatform/Export.h>

#if defined(VyrLibraryFuncs_EXPORTS)
#define VYR_FUNCS_API VYR_EXPORT
#else
#define VYR_FUNCS_API VYR_IMPORT
#endif

namespace VyrLibraryFuncs {

/// Defined only by the tests, which call private operations of the classes through it. Every class with private
/// operations declares it as a friend.
struct PrivateOperations;

} // namespace VyrLibraryFuncs
