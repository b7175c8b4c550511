// Reading files, pipes and terminals to their end, on Linux.
#include <VyrHostPlatform/ReadToEnd.h>

#include <VyrPlatform/linux/files/Descriptor.h>
#include <VyrPlatform/linux/files/NativePath.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

/// @return 0 when `descriptor` has an end (no endless device), else the error code.
int CheckKind(int descriptor) noexcept
{
    struct stat status;
    if (fstat(descriptor, &status) != 0)
        return errno;
    const bool hasEnd = S_ISREG(status.st_mode) || S_ISFIFO(status.st_mode) || isatty(descriptor);
    if (S_ISDIR(status.st_mode))
        return EISDIR;
    return hasEnd ? 0 : ENODEV;
}

/// @return 0 at the end, else the error code.
int AppendAll(int descriptor, std::string& bytes)
{
    constexpr std::size_t pieceSize = std::size_t{1} << 18;
    for (;;) {
        const std::size_t size = bytes.size();
        bytes.resize(size + pieceSize);
        const ssize_t count = read(descriptor, bytes.data() + size, pieceSize);
        bytes.resize(size + static_cast<std::size_t>(count > 0 ? count : 0));
        if (count == 0)
            return 0;
        if (count < 0 && errno != EINTR)
            return errno;
    }
}

} // namespace

std::optional<std::string> ReadToEnd(const CString& path, std::uint32_t& error)
{
    const Descriptor file(open(NativePath(path).Get(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    std::string bytes;
    int code = file.IsOpen() ? CheckKind(file.Get()) : errno;
    if (code == 0)
        code = AppendAll(file.Get(), bytes);
    error = static_cast<std::uint32_t>(code);
    return code == 0 ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace VyrHostPlatform
