// File times from local date-times.
#pragma once

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/time/COleDateTime.h>

namespace VyrLibraryFuncs {

/// The file time that `local` is written to a file as; zero when it is not valid or lies before 1601.
[[nodiscard]] FILETIME ToFileTime(const COleDateTime& local);

} // namespace VyrLibraryFuncs
