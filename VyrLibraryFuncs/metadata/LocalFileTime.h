// File times from local date-times, by the system's conversion.
#pragma once

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/time/COleDateTime.h>

namespace VyrLibraryFuncs {

/// The file time for writing `local` to a file; zero when it is invalid or before 1601.
[[nodiscard]] FILETIME ToFileTime(const COleDateTime& local);

} // namespace VyrLibraryFuncs
