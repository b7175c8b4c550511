/// @file
/// The export macro of this library.
#pragma once

#include <VyrPlatform/Export.h>

#if defined(VyrLibraryFuncs_EXPORTS)
#define VYR_FUNCS_API VYR_EXPORT
#else
#define VYR_FUNCS_API VYR_IMPORT
#endif
