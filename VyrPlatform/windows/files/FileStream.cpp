#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileStream.h>

#include "LongPath.h"

#include <VyrPlatform/windows/Handle.h>

#include <algorithm>
#include <utility>
#include <windows.h>

namespace VyrPlatform {

namespace {

constexpr std::intptr_t notOpen = -1;
constexpr std::size_t longestTransfer = 0x4000'0000;

HANDLE ToHandle(std::intptr_t handle) noexcept
{
    return reinterpret_cast<HANDLE>(handle);
}

DWORD WantedAccess(FileStream::Access access) noexcept
{
    switch (access) {
    case FileStream::Access::Read:
        return GENERIC_READ;
    case FileStream::Access::Write:
        return GENERIC_WRITE;
    default:
        return GENERIC_READ | GENERIC_WRITE;
    }
}

DWORD Disposition(FileStream::Access access, FileStream::Creation creation) noexcept
{
    if (creation == FileStream::Creation::Open)
        return OPEN_EXISTING;
    // A file that is only read is never emptied, on both systems.
    return creation == FileStream::Creation::CreateEmpty && access != FileStream::Access::Read ? CREATE_ALWAYS
                                                                                               : OPEN_ALWAYS;
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

std::uint32_t FileStream::Open(const CString& path, Access access, Creation creation, Sharing sharing)
{
    static_cast<void>(Close());
    // Wine lets root write to such a file.
    if (access != Access::Read && FileAttributes::IsReadOnly(path))
        return ERROR_ACCESS_DENIED;
    const DWORD shared = (sharing.read ? FILE_SHARE_READ : 0U) | (sharing.write ? FILE_SHARE_WRITE : 0U);
    Handle file(CreateFileW(LongPath(path).Get(), WantedAccess(access), shared, nullptr, Disposition(access, creation),
                            FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen())
        return GetLastError();
    if (GetFileType(file.Get()) != FILE_TYPE_DISK)
        return ERROR_BAD_FILE_TYPE;
    m_handle = reinterpret_cast<std::intptr_t>(file.Release());
    return ERROR_SUCCESS;
}

std::uint32_t FileStream::Close() noexcept
{
    if (!IsOpen())
        return ERROR_SUCCESS;
    return Handle(ToHandle(std::exchange(m_handle, notOpen))).Close();
}

std::uint32_t FileStream::Read(std::span<std::byte> buffer, std::size_t& count) noexcept
{
    count = 0;
    while (count < buffer.size()) {
        DWORD taken = 0;
        const auto wanted = static_cast<DWORD>(std::min(buffer.size() - count, longestTransfer));
        if (!ReadFile(ToHandle(m_handle), buffer.data() + count, wanted, &taken, nullptr))
            return GetLastError();
        if (taken == 0)
            break;
        count += taken;
    }
    return ERROR_SUCCESS;
}

std::uint32_t FileStream::Write(std::span<const std::byte> bytes) noexcept
{
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(bytes.size(), longestTransfer));
        if (!WriteFile(ToHandle(m_handle), bytes.data(), count, &written, nullptr))
            return GetLastError();
        bytes = bytes.subspan(written);
    }
    return ERROR_SUCCESS;
}

std::uint32_t FileStream::Seek(std::int64_t offset, Origin origin, std::uint64_t& place) noexcept
{
    LARGE_INTEGER distance;
    distance.QuadPart = offset;
    LARGE_INTEGER moved;
    const DWORD method = origin == Origin::Begin ? FILE_BEGIN : origin == Origin::Current ? FILE_CURRENT : FILE_END;
    if (!SetFilePointerEx(ToHandle(m_handle), distance, &moved, method))
        return GetLastError();
    place = static_cast<std::uint64_t>(moved.QuadPart);
    return ERROR_SUCCESS;
}

} // namespace VyrPlatform
