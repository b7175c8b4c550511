// Copies file contents: shared blocks, the kernel's own copy, or a buffer.
#include "FileContent.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <limits>
#include <linux/fs.h>
#include <memory>
#include <sys/ioctl.h>
#include <unistd.h>

namespace VyrPlatform {

namespace {

constexpr off_t endOfFile = std::numeric_limits<off_t>::max();

/// Copies from `offset` to `end`, or to the end of the file if that comes first.
int CopyThroughBuffer(int source, int target, off_t offset, off_t end)
{
    constexpr off_t bufferSize = off_t{256} * 1024;
    std::unique_ptr<char[]> buffer;
    char firstBytes[4096];
    while (offset < end) {
        // A file that has been copied completely ends here, so a small buffer is enough to find out.
        const off_t room = buffer ? bufferSize : static_cast<off_t>(sizeof firstBytes);
        char* const bytes = buffer ? buffer.get() : firstBytes;
        const ssize_t count = pread(source, bytes, static_cast<std::size_t>(std::min(room, end - offset)), offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0 ? 0 : errno;
        if (const int error = WriteAllAt(target, offset, {bytes, static_cast<std::size_t>(count)}))
            return error;
        offset += count;
        if (!buffer)
            buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
    }
    return 0;
}

/// Like CopyThroughBuffer, but in the kernel as far as possible. The rest, and files with content but no size (in
/// /proc), go through the buffer, which also gives a true error.
/// @param size  the size that the system reports.
int CopyRange(int source, int target, off_t offset, off_t end, off_t size)
{
    constexpr off_t longestCall = 1 << 30;
    while (offset < end) {
        off_t from = offset;
        off_t to = offset;
        const auto wanted = static_cast<std::size_t>(std::min(longestCall, end - offset));
        const ssize_t count = copy_file_range(source, &from, target, &to, wanted, 0);
        if (count == 0 && size > 0 && offset >= size)
            return 0;
        if (count <= 0)
            break;
        offset += count;
    }
    return CopyThroughBuffer(source, target, offset, end);
}

/// Copies the data between the holes of a file of `size` bytes.
int CopyData(int source, int target, off_t size)
{
    off_t position = 0;
    while (position < size) {
        const off_t data = lseek(source, position, SEEK_DATA);
        if (data < 0 && errno == ENXIO)
            break;
        if (data < 0)
            return CopyRange(source, target, position, endOfFile, size);
        const off_t hole = lseek(source, data, SEEK_HOLE);
        position = hole > data ? hole : size;
        if (const int error = CopyRange(source, target, data, position, size))
            return error;
    }
    return ftruncate(target, size) == 0 ? 0 : errno;
}

} // namespace

int WriteAllAt(int target, off_t place, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = pwrite(target, bytes.data(), bytes.size(), place);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return written < 0 ? errno : ENOSPC;
        bytes.remove_prefix(static_cast<std::size_t>(written));
        place += written;
    }
    return 0;
}

int CopyContent(int source, int target, const struct stat& status)
{
    constexpr off_t blockSize = 512;
    if (status.st_size > 0 && ioctl(target, FICLONE, source) == 0)
        return 0;
    posix_fadvise(source, 0, 0, POSIX_FADV_SEQUENTIAL);
    const bool hasHoles = status.st_blocks < status.st_size / blockSize;
    return hasHoles ? CopyData(source, target, status.st_size)
                    : CopyRange(source, target, 0, endOfFile, status.st_size);
}

} // namespace VyrPlatform
