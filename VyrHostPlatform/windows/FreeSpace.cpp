// Free space on Windows, and the file systems that can share storage between files.
#include <VyrHostPlatform/FreeSpace.h>

#include <VyrPlatform/windows/files/OpenEntry.h>

#include <windows.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

/// FILE_SUPPORTS_BLOCK_REFCOUNTING: the system's copies share storage (ReFS). The compiler's headers lack it.
constexpr DWORD canShareStorage = 0x08000000;

bool CanShareStorage(const CString& folder)
{
    const Handle opened = OpenEntry(LongPath(folder), FILE_READ_ATTRIBUTES, Links::Follow);
    DWORD flags = 0;
    return opened.IsOpen() &&
           GetVolumeInformationByHandleW(opened.Get(), nullptr, 0, nullptr, nullptr, &flags, nullptr, 0) &&
           (flags & canShareStorage) != 0;
}

} // namespace

std::optional<std::uint64_t> GetSpaceForCopies(const CString& from, const CString& to)
{
    ULARGE_INTEGER free{};
    if (!GetDiskFreeSpaceExW(LongPath(to).Get(), &free, nullptr, nullptr))
        return std::nullopt;
    if (CanShareStorage(from) && CanShareStorage(to))
        return std::nullopt;
    return free.QuadPart;
}

} // namespace VyrHostPlatform
