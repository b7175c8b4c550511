#include <VyrPlatform/files/FileReader.h>

#include "LongPath.h"

#include <VyrPlatform/windows/Handle.h>

#include <algorithm>

namespace VyrPlatform {

namespace {

constexpr std::intptr_t notOpen = -1;

HANDLE ToHandle(std::intptr_t handle) noexcept
{
    return reinterpret_cast<HANDLE>(handle);
}

/// Reads the size of the file on a disk.
/// @return 0, or the error code when it is not one.
DWORD TakeSize(HANDLE file, std::uint64_t& size) noexcept
{
    if (GetFileType(file) != FILE_TYPE_DISK)
        return ERROR_BAD_FILE_TYPE;
    LARGE_INTEGER length;
    if (!GetFileSizeEx(file, &length))
        return GetLastError();
    size = static_cast<std::uint64_t>(length.QuadPart);
    return ERROR_SUCCESS;
}

} // namespace

FileReader::FileReader(const CString& path) : m_handle(notOpen)
{
    Handle file(CreateFileW(LongPath(path).Get(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                            nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    m_error = file.IsOpen() ? TakeSize(file.Get(), m_size) : GetLastError();
    if (m_error == ERROR_SUCCESS)
        m_handle = reinterpret_cast<std::intptr_t>(file.Release());
}

FileReader::FileReader(const CString& path, std::span<std::byte> beginning) : FileReader(path)
{
    m_beginningSize =
        ReadAt(0, beginning.first(static_cast<std::size_t>(std::min<std::uint64_t>(beginning.size(), m_size))));
}

FileReader::~FileReader()
{
    // Closes itself.
    const Handle file(ToHandle(m_handle));
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
    constexpr std::size_t longestRead = 0x4000'0000;
    std::size_t count = 0;
    while (IsOpen() && count < buffer.size()) {
        const std::uint64_t place = offset + count;
        OVERLAPPED position{};
        position.Offset = static_cast<DWORD>(place & 0xFFFF'FFFF);
        position.OffsetHigh = static_cast<DWORD>(place >> 32);
        DWORD read = 0;
        const auto wanted = static_cast<DWORD>(std::min(buffer.size() - count, longestRead));
        if (!ReadFile(ToHandle(m_handle), buffer.data() + count, wanted, &read, &position) || read == 0)
            break;
        count += read;
    }
    return count;
}

} // namespace VyrPlatform
