// Opens files to look at them without moving their access times.
#pragma once

#include <cerrno>
#include <fcntl.h>

namespace VyrPlatform {

/// Opens a file for reading so that its access time stays, where the system lets this program do that: only the owner
/// of a file and root may.
/// @param open  opens it with the flags that it gets, as open() does.
template <class Open>
[[nodiscard]] int OpenToLook(const Open& open, int flags)
{
    const int descriptor = open(flags | O_NOATIME);
    return descriptor < 0 && errno == EPERM ? open(flags) : descriptor;
}

/// The same for the file at `path`.
[[nodiscard]] inline int OpenToLook(const char* path, int flags)
{
    return OpenToLook([path](int all) { return open(path, all); }, flags);
}

} // namespace VyrPlatform
