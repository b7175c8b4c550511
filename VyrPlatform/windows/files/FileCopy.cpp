// Copying and moving files on Windows.
#include <VyrPlatform/files/FileCopy.h>

#include "LongPath.h"

#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileIdentity.h>

#include <windows.h>

namespace VyrPlatform::FileCopy {

namespace {

/// The error code of a call that has just answered `result`.
DWORD ErrorOf(BOOL result) noexcept
{
    return result ? ERROR_SUCCESS : GetLastError();
}

bool IsSameFile(const CString& left, const CString& right)
{
    const FileState leftState = LookAtFile(left);
    return leftState.error == 0 && leftState.identity == LookAtFile(right).identity;
}

void Remove(const LongPath& path) noexcept
{
    SetFileAttributesW(path.Get(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(path.Get());
}

/// Copies in the place of a file that stands at `destination`. The system's own call would empty that file first.
DWORD CopyOver(const CString& source, const CString& destination)
{
    if (FileAttributes::IsReadOnly(destination))
        return ERROR_ACCESS_DENIED;
    if (IsSameFile(source, destination))
        return ERROR_SHARING_VIOLATION;
    const LongPath temporary(MakeTemporaryPath(destination));
    if (const DWORD error = ErrorOf(CopyFileW(LongPath(source).Get(), temporary.Get(), TRUE)))
        return error;
    const DWORD error = ErrorOf(MoveFileExW(temporary.Get(), LongPath(destination).Get(), MOVEFILE_REPLACE_EXISTING));
    if (error != ERROR_SUCCESS)
        Remove(temporary);
    return error;
}

} // namespace

std::uint32_t Copy(const CString& source, const CString& destination)
{
    const DWORD error = ErrorOf(CopyFileW(LongPath(source).Get(), LongPath(destination).Get(), TRUE));
    return error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS ? CopyOver(source, destination) : error;
}

std::uint32_t Move(const CString& source, const CString& destination)
{
    const LongPath from(source);
    const DWORD attributes = GetFileAttributesW(from.Get());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return GetLastError();
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) || FileAttributes::IsReadOnly(destination))
        return ERROR_ACCESS_DENIED;
    constexpr DWORD flags = MOVEFILE_COPY_ALLOWED | MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return ErrorOf(MoveFileExW(from.Get(), LongPath(destination).Get(), flags));
}

std::uint32_t RemoveEmptyFolder(const CString& path)
{
    return ErrorOf(RemoveDirectoryW(LongPath(path).Get()));
}

} // namespace VyrPlatform::FileCopy
