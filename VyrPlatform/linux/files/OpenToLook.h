// Opens files without changing their access times.
#pragma once

#include <cerrno>
#include <fcntl.h>

namespace VyrPlatform {

/// Opens a file for reading and keeps its access time, if the system allows it: only for the owner of the file and
/// root.
/// @param open  opens the file with the given flags, like open().
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
