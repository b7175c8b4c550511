#include <VyrPlatform/files/FileCopy.h>

#include "OpenEntry.h"
#include "ReparsePoint.h"

#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>

namespace VyrPlatform::FileCopy {

namespace {

/// The error code of a call that has just returned `result`.
DWORD ErrorOf(BOOL result) noexcept
{
    return result ? ERROR_SUCCESS : GetLastError();
}

/// Whether `path` is a symbolic link or a junction; Copy and Move follow neither.
bool IsLink(const LongPath& path)
{
    const DWORD attributes = GetFileAttributesW(path.Get());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) &&
           ParseReparsePoint(ReadReparsePoint(path));
}

bool IsSameFile(const CString& left, const CString& right)
{
    const FileState leftState = LookAtFile(left);
    return leftState.error == 0 && leftState.identity == LookAtFile(right).identity;
}

void Remove(const LongPath& path) noexcept
{
    SetFileAttributesW(path.Get(), FILE_ATTRIBUTE_NORMAL);
    if (!DeleteFileW(path.Get()))
        RemoveDirectoryW(path.Get());
}

/// Creates the new entry `destination` completely, or not at all.
DWORD CopyEntry(const LongPath& source, const LongPath& destination)
{
    return IsLink(source) ? CopyReparsePoint(source, destination)
                          : ErrorOf(CopyFileW(source.Get(), destination.Get(), TRUE));
}

/// Copies over the file `destination`. The system's own call would empty that file first.
DWORD CopyOver(const CString& source, const CString& destination)
{
    if (FileAttributes::IsReadOnly(destination))
        return ERROR_ACCESS_DENIED;
    if (IsSameFile(source, destination))
        return ERROR_SHARING_VIOLATION;
    const LongPath from(source);
    const LongPath to(destination);
    const LongPath temporary(MakeTemporaryPath(destination));
    if (const DWORD error = CopyEntry(from, temporary)) {
        // The folder is not writable, but the file may be.
        const bool isOverwritten =
            error == ERROR_ACCESS_DENIED && !IsLink(from) && !IsLink(to) && CopyFileW(from.Get(), to.Get(), FALSE);
        return isOverwritten ? ERROR_SUCCESS : error;
    }
    const DWORD error = ErrorOf(MoveFileExW(temporary.Get(), to.Get(), MOVEFILE_REPLACE_EXISTING));
    if (error != ERROR_SUCCESS)
        Remove(temporary);
    return error;
}

/// Moves by copying and removing.
DWORD MoveByCopy(const CString& source, const CString& destination)
{
    const LongPath from(source);
    const bool isFolder = GetFileAttributesW(from.Get()) & FILE_ATTRIBUTE_DIRECTORY;
    // A file that may not be removed is not copied.
    if (const Handle removable = OpenEntry(from, DELETE, Links::Keep); !removable.IsOpen())
        return GetLastError();
    if (const DWORD error = Copy(source, destination))
        return error;
    return ErrorOf(isFolder ? RemoveDirectoryW(from.Get()) : DeleteFileW(from.Get()));
}

/// Removes `source`, another name of the file `destination`, unless both are one entry.
DWORD RemoveSecondName(const CString& source, const CString& destination)
{
    const LongPath from(source);
    const LongPath temporary(MakeTemporaryPath(source));
    if (const DWORD error = ErrorOf(MoveFileExW(from.Get(), temporary.Get(), 0)))
        return error;
    if (FileSystem::Exists(destination))
        return ErrorOf(DeleteFileW(temporary.Get()));
    return ErrorOf(MoveFileExW(temporary.Get(), from.Get(), 0));
}

} // namespace

std::uint32_t Copy(const CString& source, const CString& destination)
{
    const DWORD error = CopyEntry(LongPath(source), LongPath(destination));
    return error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS ? CopyOver(source, destination) : error;
}

std::uint32_t Move(const CString& source, const CString& destination)
{
    const LongPath from(source);
    const LongPath to(destination);
    const DWORD attributes = GetFileAttributesW(from.Get());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return GetLastError();
    const bool isFolder = attributes & FILE_ATTRIBUTE_DIRECTORY;
    if ((isFolder && !IsLink(from)) || FileAttributes::IsReadOnly(destination))
        return ERROR_ACCESS_DENIED;
    if (const FileState state = LookAtFile(source); state.links > 1 && IsSameFile(source, destination))
        return RemoveSecondName(source, destination);
    // The system copies files to another volume, but not links to folders.
    const DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH | (isFolder ? 0 : MOVEFILE_COPY_ALLOWED);
    const DWORD error = ErrorOf(MoveFileExW(from.Get(), to.Get(), flags));
    const bool isLocked = error == ERROR_ACCESS_DENIED && FileSystem::Query(destination).kind == FileSystem::Kind::File;
    return error == ERROR_NOT_SAME_DEVICE || isLocked ? MoveByCopy(source, destination) : error;
}

std::uint32_t CopyFolderMode(const CString& source, const CString& destination, OwnerAccess /*access*/)
{
    // The other bits describe the disk, not the folder.
    constexpr DWORD settable = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                               FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD attributes = GetFileAttributesW(LongPath(source).Get());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return GetLastError();
    const DWORD wanted = attributes & settable;
    return ErrorOf(SetFileAttributesW(LongPath(destination).Get(), wanted ? wanted : FILE_ATTRIBUTE_NORMAL));
}

std::uint32_t RemoveEmptyFolder(const CString& path)
{
    return ErrorOf(RemoveDirectoryW(LongPath(path).Get()));
}

} // namespace VyrPlatform::FileCopy
