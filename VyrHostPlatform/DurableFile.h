/// @file
/// Files that are flushed to the disk, and a lock that one program at a time can hold.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <functional>
#include <string_view>

namespace VyrHostPlatform::DurableFile {

/// Receives a piece of a file's content.
using TakePiece = std::function<void(std::string_view piece)>;
/// Gives the content of a file to `take`, piece by piece, so that long content need not be in memory as a whole.
using Content = std::function<void(const TakePiece& take)>;

/// Who may read a new file, on Linux; on Windows the folder decides.
enum class Readers : std::uint8_t
{
    /// Its owner alone.
    Owner,
    /// Whoever the user's mask of permissions (umask) lets read new files.
    ByMask
};

/// Creates the file `path` with `content`, and flushes it to the disk. The name itself is safe only after FlushFolder.
/// @param content called at most once; an exception from it is passed on, and leaves an incomplete file.
/// @return 0, else the system's error code (a file that exists already is an error), and then the file is removed.
[[nodiscard]] std::uint32_t WriteNew(const CString& path, const Content& content, Readers readers = Readers::Owner);

/// Writes `content` into a new file beside `path`, as WriteNew does, and then renames it to `path`: there is always the
/// file before or the whole new one. A program that is killed leaves at most a file of a name that nobody uses.
/// @param mayReplace  whether a file at `path` is replaced, as RenameOver does; otherwise it is an error.
/// @return 0, else the system's error code, and what is at `path` is unchanged.
[[nodiscard]] std::uint32_t WriteWhole(const CString& path, const Content& content, bool mayReplace);

/// Appends `content` to the file `path`, without flushing it.
/// @return 0, else the system's error code; a part of `content` may then have been written.
[[nodiscard]] std::uint32_t Append(const CString& path, std::string_view content);

/// Removes the file `path`.
/// @return 0, else the system's error code.
[[nodiscard]] std::uint32_t Remove(const CString& path);

/// Flushes the names in the folder `path` to the disk (on Windows the file system does so by itself).
/// @return 0, else the system's error code.
[[nodiscard]] std::uint32_t FlushFolder(const CString& path);

} // namespace VyrHostPlatform::DurableFile

namespace VyrHostPlatform {

/// A lock between programs. It is held until the object is destroyed or the program ends, however it ends.
class FileLock
{
public:
    /// Takes the lock of the file at `path`, without waiting; creates the file when it is missing.
    explicit FileLock(const CString& path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    [[nodiscard]] bool IsHeld() const noexcept { return m_error == 0; }
    /// Why the lock is not held: the system's error code, else 0.
    [[nodiscard]] std::uint32_t Error() const noexcept { return m_error; }
    /// Whether another program holds the lock.
    [[nodiscard]] bool IsTaken() const noexcept { return m_isTaken; }

private:
    std::intptr_t m_handle = -1;
    std::uint32_t m_error = 0;
    bool m_isTaken = false;
};

} // namespace VyrHostPlatform
