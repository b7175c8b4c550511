#include "FlushFolder.h"

#include "Descriptor.h"
#include "NativePath.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace VyrPlatform {

std::uint32_t FlushFolder(const CString& path)
{
    const Descriptor folder(open(NativePath(path).Get(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // EINVAL: the file system flushes its folders by itself.
    const bool isFlushed = folder.IsOpen() && (fsync(folder.Get()) == 0 || errno == EINVAL);
    return isFlushed ? 0 : static_cast<std::uint32_t>(errno);
}

} // namespace VyrPlatform
