#include <VyrPlatform/files/FileTimes.h>

#include "FileStatus.h"
#include "OpenEntry.h"

#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileSystem.h>

namespace VyrPlatform::FileTimes {

namespace {

/// Sets the times that are given.
std::uint32_t Set(const CString& path, const FILETIME* created, const FILETIME* modified)
{
    const Handle file = OpenEntry(LongPath(path), FILE_WRITE_ATTRIBUTES, Links::Follow);
    const bool isSet = file.IsOpen() && SetFileTime(file.Get(), created, nullptr, modified);
    return isSet ? ERROR_SUCCESS : GetLastError();
}

} // namespace

std::optional<FileTicks> GetModified(const CString& path)
{
    return FileSystem::Query(path).modified;
}

std::optional<FileTicks> GetCreated(const CString& path)
{
    return FileSystem::Query(path).created;
}

std::optional<FileTicks> GetAccessed(const CString& path)
{
    return FileSystem::Query(path).accessed;
}

std::uint32_t SetModified(const CString& path, FileTicks modified)
{
    const FILETIME time = ToFileTime(modified);
    return Set(path, nullptr, &time);
}

std::uint32_t SetCreated(const CString& path, FileTicks created)
{
    const FILETIME time = ToFileTime(created);
    return Set(path, &time, nullptr);
}

std::uint32_t Write(const CString& path, const NewTimes& times)
{
    const bool isFolder = FileSystem::IsFolder(path);
    // The system refuses to open such a file for writing, but Wine does not refuse root.
    if (!isFolder && FileAttributes::IsReadOnly(path))
        return ERROR_ACCESS_DENIED;
    const DWORD flags = isFolder ? FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS : FILE_ATTRIBUTE_NORMAL;
    const Handle file(CreateFileW(LongPath(path).Get(), GENERIC_READ | GENERIC_WRITE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, flags, nullptr));
    if (!file.IsOpen())
        return GetLastError();
    const FILETIME created = ToFileTime(times.created);
    const FILETIME modified = ToFileTime(times.modified);
    const FILETIME accessed = ToFileTime(times.accessed);
    const BOOL isSet =
        SetFileTime(file.Get(), times.created != 0 ? &created : nullptr, times.accessed != 0 ? &accessed : nullptr,
                    times.modified != 0 ? &modified : nullptr);
    return isSet ? ERROR_SUCCESS : GetLastError();
}

} // namespace VyrPlatform::FileTimes
