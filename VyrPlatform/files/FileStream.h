/// @file
/// An open file with a position at which it is read and written.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace VyrPlatform {

/// A regular file, opened for reading, writing or both. Unbuffered: every call is a call of the system.
class VYR_PLATFORM_API FileStream
{
public:
    enum class Access : std::uint8_t
    {
        Read,
        Write,
        ReadWrite
    };

    /// How existing and missing files are treated.
    enum class Creation : std::uint8_t
    {
        /// The file must exist.
        Open,
        /// A missing file is created.
        OpenOrCreate,
        /// A missing file is created, and an existing one emptied.
        CreateEmpty
    };

    /// What others may do with the file meanwhile. Linux has no such limits: every value allows everything.
    struct Sharing
    {
        bool read = true;
        bool write = true;
    };

    enum class Origin : std::uint8_t
    {
        Begin,
        Current,
        End
    };

    FileStream() noexcept;
    FileStream(const FileStream&) = delete;
    FileStream& operator=(const FileStream&) = delete;
    ~FileStream();

    /// Opens the file at `path`, after closing an open one. Anything but a regular file (a folder, a pipe, a device)
    /// does not open, and is never waited for. A read-only file does not open for writing, for any user, and keeps its
    /// content.
    /// @return 0, else the system's error code.
    [[nodiscard]] std::uint32_t Open(const CString& path, Access access, Creation creation, Sharing sharing);
    [[nodiscard]] bool IsOpen() const noexcept;
    /// Closes the file. Some file systems report only here that they could not write everything.
    /// @return 0, also when none is open, else the system's error code.
    [[nodiscard]] std::uint32_t Close() noexcept;

    /// Reads into `buffer` until it is full or the file ends.
    /// @param count  gets the number of bytes read, also when the system fails.
    /// @return 0, else the system's error code.
    [[nodiscard]] std::uint32_t Read(std::span<std::byte> buffer, std::size_t& count) noexcept;
    /// Writes all of `bytes`.
    /// @return 0, else the system's error code; a part may then have been written.
    [[nodiscard]] std::uint32_t Write(std::span<const std::byte> bytes) noexcept;
    /// Moves the position to `offset` bytes from `origin`; it may be past the end.
    /// @param place  gets the new position, from the beginning; unchanged when the system fails.
    /// @return 0, else the system's error code, also for a position before the beginning.
    [[nodiscard]] std::uint32_t Seek(std::int64_t offset, Origin origin, std::uint64_t& place) noexcept;

private:
    std::intptr_t m_handle;
};

} // namespace VyrPlatform
