#include <VyrPlatform/files/FileReader.h>

#include "EnteredFolder.h"
#include "NativePath.h"
#include "OpenToLook.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VyrPlatform {

namespace {

constexpr int notOpen = -1;
/// Opening a pipe without O_NONBLOCK would wait for its other end.
constexpr int howToOpen = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

int Open(const CString& path)
{
    const NativePath nativePath(path);
    return OpenToLook([&nativePath](int flags) { return OpenFromEnteredFolder(nativePath.Get(), flags); }, howToOpen);
}

/// Reads the size of the regular file `descriptor`.
/// @return 0, or the error code when it is not a regular file.
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

/// Reads from `offset` on until `buffer` is full, the file ends or the system fails.
/// @return the number of bytes read; when that is 0 after a failure, `errno` gives the reason.
std::size_t Read(int descriptor, std::uint64_t offset, std::span<std::byte> buffer) noexcept
{
    std::size_t count = 0;
    while (count < buffer.size()) {
        const ssize_t read =
            pread(descriptor, buffer.data() + count, buffer.size() - count, static_cast<off_t>(offset + count));
        if (read < 0 && errno == EINTR)
            continue;
        if (read <= 0)
            break;
        count += static_cast<std::size_t>(read);
    }
    return count;
}

/// Reads the size and the beginning of `descriptor`.
/// @return 0, or the error code when it has no positions to read at.
int TakeBeginning(int descriptor, std::uint64_t& size, std::span<std::byte> beginning, std::size_t& count) noexcept
{
    // Seeking fails for a pipe, and reading fails for a folder. Both take less time than querying the kind of a file,
    // which is needed only for one that seems empty.
    const off_t end = lseek(descriptor, 0, SEEK_END);
    if (end < 0)
        return errno;
    if (end == 0)
        return TakeSize(descriptor, size);
    const auto wanted = std::min<std::uint64_t>(beginning.size(), static_cast<std::uint64_t>(end));
    errno = EIO;
    count = Read(descriptor, 0, beginning.first(static_cast<std::size_t>(wanted)));
    if (count == 0)
        return errno;
    size = static_cast<std::uint64_t>(end);
    return 0;
}

/// Keeps `descriptor`, or closes it when `error` is not 0.
std::intptr_t KeepUnless(int error, int descriptor) noexcept
{
    if (error == 0)
        return descriptor;
    if (descriptor != notOpen)
        close(descriptor);
    return notOpen;
}

} // namespace

FileReader::FileReader(const CString& path) : m_handle(notOpen)
{
    const int descriptor = Open(path);
    const int error = descriptor == notOpen ? errno : TakeSize(descriptor, m_size);
    m_error = static_cast<std::uint32_t>(error);
    m_handle = KeepUnless(error, descriptor);
}

FileReader::FileReader(const CString& path, std::span<std::byte> beginning) : m_handle(notOpen)
{
    const int descriptor = Open(path);
    const int error = descriptor == notOpen ? errno : TakeBeginning(descriptor, m_size, beginning, m_beginningSize);
    m_error = static_cast<std::uint32_t>(error);
    m_handle = KeepUnless(error, descriptor);
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
    return Read(static_cast<int>(m_handle), offset, buffer);
}

} // namespace VyrPlatform
