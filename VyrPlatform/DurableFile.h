/// @file
/// Files whose content is known to be on the disk, and the lock that only one program holds at a time.
#pragma once

#include <VyrPlatform/CString.h>
#include <VyrPlatform/Export.h>

#include <cstdint>
#include <string_view>

namespace VyrPlatform {

/// A file that is written at its end alone, for its owner's eyes.
class VYR_PLATFORM_API DurableFile
{
public:
    enum class Opening : std::uint8_t
    {
        /// Makes the file; one that exists is an error.
        New,
        /// Opens a file that exists.
        Existing
    };

    /// Opens the file at `path`; IsOpen tells whether that succeeded, Error why not.
    DurableFile(const CString& path, Opening opening);
    DurableFile(const DurableFile&) = delete;
    DurableFile& operator=(const DurableFile&) = delete;
    ~DurableFile();

    [[nodiscard]] bool IsOpen() const noexcept { return m_error == 0; }
    /// The system's error code when the file did not open, else 0.
    [[nodiscard]] std::uint32_t Error() const noexcept { return m_error; }

    /// Writes `bytes` behind what the file holds.
    /// @return 0 when all were taken, else the system's error code.
    [[nodiscard]] std::uint32_t Append(std::string_view bytes);
    /// Waits until everything written is on the disk.
    /// @return 0, else the system's error code.
    [[nodiscard]] std::uint32_t Flush();

private:
    std::intptr_t m_handle = -1;
    std::uint32_t m_error = 0;
};

/// Waits until the names in the folder at `path` are on the disk (which Windows sees to by itself).
/// @return 0, else the system's error code.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t FlushFolder(const CString& path);

/// A lock between programs: held until the object, or the program in whatever way, ends.
class VYR_PLATFORM_API FileLock
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

} // namespace VyrPlatform
