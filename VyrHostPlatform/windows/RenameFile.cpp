// Renames without replacing, and over a file, on Windows.
#include <VyrHostPlatform/RenameFile.h>

#include <VyrPlatform/windows/files/LongPath.h>

#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <windows.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;
using FileSystem::JoinPath;

namespace {

/// Keeps only the path: an open folder and its parents could not be renamed.
constexpr std::intptr_t noHandle = -1;

/// The form of a path that the system uses unchanged. In other forms it removes dots and blanks at the end of a name,
/// and treats some names as devices.
CString ToExactPath(const CString& fullPath)
{
    CString path = fullPath;
    path.Replace(u"/", uR"(\)");
    return AddLongPathPrefix(path);
}

DWORD FindFolderError(const CString& path) noexcept
{
    const DWORD attributes = GetFileAttributesW(ToWide(path));
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return GetLastError();
    return attributes & FILE_ATTRIBUTE_DIRECTORY ? ERROR_SUCCESS : ERROR_DIRECTORY;
}

std::uint32_t Rename(const CString& from, const CString& to) noexcept
{
    // Where both are links to one file, or one path in another case, some file systems succeed and do nothing.
    if (GetFileAttributesW(ToWide(to)) != INVALID_FILE_ATTRIBUTES)
        return GetFileAttributesW(ToWide(from)) != INVALID_FILE_ATTRIBUTES ? ERROR_ALREADY_EXISTS : GetLastError();
    return MoveFileExW(ToWide(from), ToWide(to), 0) ? ERROR_SUCCESS : GetLastError();
}

} // namespace

std::uint32_t RenameNoReplace(const CString& from, const CString& to)
{
    return Rename(ToExactPath(from), ToExactPath(to));
}

bool IsTargetTaken(std::uint32_t error) noexcept
{
    return error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS;
}

bool IsOtherFileSystem(std::uint32_t error) noexcept
{
    return error == ERROR_NOT_SAME_DEVICE;
}

std::uint32_t RenameOver(const CString& from, const CString& to)
{
    // The system refuses to replace a folder, a device and a read-only file.
    const CString source = ToExactPath(from);
    const CString target = ToExactPath(to);
    if (GetFileAttributesW(ToWide(target)) == INVALID_FILE_ATTRIBUTES)
        return GetLastError();
    return MoveFileExW(ToWide(source), ToWide(target), MOVEFILE_REPLACE_EXISTING) ? ERROR_SUCCESS : GetLastError();
}

OpenFolder::OpenFolder(const CString& path)
    : m_path(ToExactPath(path)), m_handle(noHandle), m_error(FindFolderError(m_path))
{}

OpenFolder::~OpenFolder() = default;

FileState OpenFolder::Look(std::u16string_view name) const
{
    return LookAtFile(JoinPath(m_path, name));
}

std::uint32_t OpenFolder::RenameNoReplace(std::u16string_view name, const OpenFolder& target,
                                          std::u16string_view newName) const
{
    return Rename(JoinPath(m_path, name), JoinPath(target.m_path, newName));
}

std::uint32_t OpenFolder::DropSecondName(std::u16string_view, const OpenFolder&, std::u16string_view) const
{
    // The system always renames in one call, so nothing is ever half done.
    return ERROR_NOT_SUPPORTED;
}

std::uint32_t OpenFolder::MakeFolder(std::u16string_view name) const
{
    return CreateDirectoryW(ToWide(JoinPath(m_path, name)), nullptr) ? ERROR_SUCCESS : GetLastError();
}

std::uint32_t OpenFolder::RemoveEmptyFolder(std::u16string_view name) const
{
    return RemoveDirectoryW(ToWide(JoinPath(m_path, name))) ? ERROR_SUCCESS : GetLastError();
}

} // namespace VyrHostPlatform
