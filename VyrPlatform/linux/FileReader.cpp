// Reading a file at any place, on Linux.
#include <VyrPlatform/FileReader.h>

#include "NativePath.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VyrPlatform {

namespace {

constexpr int notOpen = -1;

/// Takes the size of the regular file behind `descriptor`.
/// @return 0, or the error code when it is something else.
int TakeSize(int descriptor, std::uint64_t& size) noexcept
{
    struct stat status;
    if (fstat(descriptor, &status) != 0)
        return errno;
    if (S_ISDIR(status.st_mode))
        return EISDIR;
    if (!S_ISREG(status.st_mode))
        return EINVAL;
    size = static_cast<std::uint64_t>(status.st_size);
    return 0;
}

} // namespace

FileReader::FileReader(const CString& path) : m_handle(notOpen)
{
    // Opening a pipe without O_NONBLOCK would wait for its other end.
    const int descriptor = open(NativePath(path).Get(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    const int error = descriptor == notOpen ? errno : TakeSize(descriptor, m_size);
    m_error = static_cast<std::uint32_t>(error);
    if (error == 0)
        m_handle = descriptor;
    else if (descriptor != notOpen)
        close(descriptor);
}

FileReader::~FileReader()
{
    if (IsOpen())
        close(static_cast<int>(m_handle));
}

bool FileReader::IsOpen() const noexcept
{
    return m_handle != notOpen;
}

std::uint32_t FileReader::Error() const noexcept
{
    return m_error;
}

std::size_t FileReader::ReadAt(std::uint64_t offset, std::span<std::byte> buffer) const
{
    std::size_t count = 0;
    while (count < buffer.size()) {
        const ssize_t read = pread(static_cast<int>(m_handle), buffer.data() + count, buffer.size() - count,
                                   static_cast<off_t>(offset + count));
        if (read < 0 && errno == EINTR)
            continue;
        if (read <= 0)
            break;
        count += static_cast<std::size_t>(read);
    }
    return count;
}

} // namespace VyrPlatform
