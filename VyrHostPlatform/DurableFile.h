/// @file
/// Writing that is known to be on the disk, and the lock that only one program holds at a time.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <functional>
#include <string_view>

namespace VyrHostPlatform::DurableFile {

/// Takes a piece of a file's content.
using TakePiece = std::function<void(std::string_view piece)>;
/// Gives the content of a file to `take`, piece by piece: a long one need not stand in memory as a whole.
using Content = std::function<void(const TakePiece& take)>;

/// Makes the file `path`, for its owner's eyes alone, with `content`, and waits until that is on the disk. The name is
/// there for good only after FlushFolder.
/// @param content called once at most; what it throws is passed on, and a part of the file is left.
/// @return 0, else the system's error code (a file that exists already is an error), and then no file of this call is
/// left.
[[nodiscard]] std::uint32_t WriteNew(const CString& path, const Content& content);

/// Writes `content` behind what the file `path` holds. It comes to the disk in the system's own time.
/// @return 0, else the system's error code; a part of `content` may then have been written.
[[nodiscard]] std::uint32_t Append(const CString& path, std::string_view content);

/// Takes the file `path` away.
/// @return 0, else the system's error code.
[[nodiscard]] std::uint32_t Remove(const CString& path);

/// Waits until the names in the folder `path` are on the disk (on Windows the file system sees to that by itself).
/// @return 0, else the system's error code.
[[nodiscard]] std::uint32_t FlushFolder(const CString& path);

} // namespace VyrHostPlatform::DurableFile

namespace VyrHostPlatform {

/// A lock between programs: held until the object ends, or the program in whatever way.
class FileLock
{
public:
    /// Takes the lock that the file at `path` stands for, without waiting; the file is made when it is not there.
    explicit FileLock(const CString& path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    [[nodiscard]] bool IsHeld() const noexcept { return m_error == 0; }
    /// Why the lock is not held: the system's error code, else 0.
    [[nodiscard]] std::uint32_t Error() const noexcept { return m_error; }
    /// Whether it is not held because another holds it.
    [[nodiscard]] bool IsTaken() const noexcept { return m_isTaken; }

private:
    std::intptr_t m_handle = -1;
    std::uint32_t m_error = 0;
    bool m_isTaken = false;
};

} // namespace VyrHostPlatform
