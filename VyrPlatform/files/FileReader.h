/// @file
/// Reads a file at any offset.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace VyrPlatform {

/// A file opened for reading, which others may read, write, rename and delete. Opens only regular files, and so never
/// waits for a pipe or a device.
class VYR_PLATFORM_API FileReader
{
public:
    /// Opens the file at `path`; IsOpen tells whether that succeeded, and Error the reason if not.
    explicit FileReader(const CString& path);
    /// Opens the file and reads its first bytes into `beginning`. On Linux this is cheaper than the two steps, because
    /// it does not query the file's kind; so it also opens a disk device.
    FileReader(const CString& path, std::span<std::byte> beginning);
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;
    ~FileReader();

    [[nodiscard]] bool IsOpen() const noexcept;
    /// The system's error code when the file did not open, else 0.
    [[nodiscard]] std::uint32_t Error() const noexcept;
    /// The size in bytes when it was opened; 0 when it is not open.
    [[nodiscard]] std::uint64_t Size() const noexcept { return m_size; }
    /// The number of bytes of the beginning that were read when it was opened.
    [[nodiscard]] std::size_t BeginningSize() const noexcept { return m_beginningSize; }
    /// Reads from `offset` on into `buffer`.
    /// @return the number of bytes read: fewer than requested only at the end of the file or when the system fails.
    [[nodiscard]] std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) const;

private:
    std::intptr_t m_handle;
    std::uint64_t m_size = 0;
    std::size_t m_beginningSize = 0;
    std::uint32_t m_error = 0;
};

} // namespace VyrPlatform
