/// @file
/// The export macro of this library, and the tests' way past `private`.
#pragma once

#include <VyrPlatform/Export.h>

#if defined(VyrLibraryFuncs_EXPORTS)
#define VYR_FUNCS_API VYR_EXPORT
#else
#define VYR_FUNCS_API VYR_IMPORT
#endif

namespace VyrLibraryFuncs {

/// Defined by the tests alone, which reach the private operations of the classes through it. Every class with private
/// operations names it as its friend.
struct PrivateOperations;

} // namespace VyrLibraryFuncs
