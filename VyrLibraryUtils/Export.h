/// @file
/// The export macro of this library.
#pragma once

#include <VyrPlatform/Export.h>

#if defined(VyrLibraryUtils_EXPORTS)
#define VYR_UTILS_API VYR_EXPORT
#else
#define VYR_UTILS_API VYR_IMPORT
#endif
