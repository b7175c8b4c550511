#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileStream.h>

#include "NativePath.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VyrPlatform {

namespace {

constexpr int notOpen = -1;

std::uint32_t LastError() noexcept
{
    return static_cast<std::uint32_t>(errno);
}

int HowToOpen(FileStream::Access access, FileStream::Creation creation) noexcept
{
    // Opening a pipe without O_NONBLOCK would wait for its other end.
    int flags = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    if (creation != FileStream::Creation::Open)
        flags |= O_CREAT;
    switch (access) {
    case FileStream::Access::Read:
        return flags | O_RDONLY;
    case FileStream::Access::Write:
        return flags | O_WRONLY;
    default:
        return flags | O_RDWR;
    }
}

/// 0 for a regular file, else the error code for its kind.
std::uint32_t CheckKind(int descriptor) noexcept
{
    struct stat status;
    if (fstat(descriptor, &status) != 0)
        return LastError();
    if (S_ISDIR(status.st_mode))
        return EISDIR;
    return S_ISREG(status.st_mode) ? 0 : EBADF;
}

} // namespace

FileStream::FileStream() noexcept : m_handle(notOpen) {}

FileStream::~FileStream()
{
    static_cast<void>(Close());
}

bool FileStream::IsOpen() const noexcept
{
    return m_handle != notOpen;
}

std::uint32_t FileStream::Open(const CString& path, Access access, Creation creation, Sharing)
{
    static_cast<void>(Close());
    // The system itself would let root write to such a file.
    if (access != Access::Read && FileAttributes::IsReadOnly(path))
        return EACCES;
    m_handle = open(NativePath(path).Get(), HowToOpen(access, creation), 0666);
    if (!IsOpen())
        return LastError();
    std::uint32_t error = CheckKind(static_cast<int>(m_handle));
    // O_TRUNC would empty the file before its kind is checked, and is undefined for read-only access.
    if (!error && creation == Creation::CreateEmpty && access != Access::Read &&
        ftruncate(static_cast<int>(m_handle), 0) != 0)
        error = LastError();
    if (error)
        static_cast<void>(Close());
    return error;
}

std::uint32_t FileStream::Close() noexcept
{
    if (!IsOpen())
        return 0;
    const int descriptor = static_cast<int>(m_handle);
    m_handle = notOpen;
    return close(descriptor) == 0 ? 0 : LastError();
}

std::uint32_t FileStream::Read(std::span<std::byte> buffer, std::size_t& count) noexcept
{
    count = 0;
    while (count < buffer.size()) {
        const ssize_t taken = read(static_cast<int>(m_handle), buffer.data() + count, buffer.size() - count);
        if (taken < 0 && errno != EINTR)
            return LastError();
        if (taken == 0)
            break;
        if (taken > 0)
            count += static_cast<std::size_t>(taken);
    }
    return 0;
}

std::uint32_t FileStream::Write(std::span<const std::byte> bytes) noexcept
{
    while (!bytes.empty()) {
        const ssize_t written = write(static_cast<int>(m_handle), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return LastError();
        if (written > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return 0;
}

std::uint32_t FileStream::Seek(std::int64_t offset, Origin origin, std::uint64_t& place) noexcept
{
    const int whence = origin == Origin::Begin ? SEEK_SET : origin == Origin::Current ? SEEK_CUR : SEEK_END;
    const off_t moved = lseek(static_cast<int>(m_handle), offset, whence);
    if (moved < 0)
        return LastError();
    place = static_cast<std::uint64_t>(moved);
    return 0;
}

} // namespace VyrPlatform
