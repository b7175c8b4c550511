/// @file
/// An open file that is read and written from a place that moves along.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace VyrPlatform {

/// A regular file, opened for reading, writing or both. Without a buffer: every call asks the system.
class VYR_PLATFORM_API FileStream
{
public:
    enum class Access : std::uint8_t
    {
        Read,
        Write,
        ReadWrite
    };

    /// What becomes of a file that is there, and of one that is not.
    enum class Creation : std::uint8_t
    {
        /// It must be there.
        Open,
        /// It is made where it is missing.
        OpenOrCreate,
        /// It is made where it is missing, and emptied where it is there.
        CreateEmpty
    };

    /// What others may do with the file meanwhile. Linux has no such limits: there every value allows everything.
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

    /// Opens the file at `path`; one that is open is closed first. What is not a regular file (a folder, a pipe, a
    /// device) does not open, and is never waited for; a read-only file does not open for writing, whoever asks, and
    /// keeps its content.
    /// @return 0, else the system's error code.
    [[nodiscard]] std::uint32_t Open(const CString& path, Access access, Creation creation, Sharing sharing);
    [[nodiscard]] bool IsOpen() const noexcept;
    /// Closes the file. A file system may tell only here that it could not write everything.
    /// @return 0, also when none is open, else the system's error code.
    [[nodiscard]] std::uint32_t Close() noexcept;

    /// Reads into `buffer` until it is full or the file ends.
    /// @param count  gets the number of bytes that were read, also when the system fails.
    /// @return 0, else the system's error code.
    [[nodiscard]] std::uint32_t Read(std::span<std::byte> buffer, std::size_t& count) noexcept;
    /// Writes all of `bytes`.
    /// @return 0, else the system's error code; a part may then have been written.
    [[nodiscard]] std::uint32_t Write(std::span<const std::byte> bytes) noexcept;
    /// Moves the place to `offset` bytes from `origin`; it may lie behind the end.
    /// @param place  gets the new place, from the beginning; unchanged when the system fails.
    /// @return 0, else the system's error code, also for a place before the beginning.
    [[nodiscard]] std::uint32_t Seek(std::int64_t offset, Origin origin, std::uint64_t& place) noexcept;

private:
    std::intptr_t m_handle;
};

} // namespace VyrPlatform
