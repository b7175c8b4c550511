#include <VyrPlatform/files/FileSystem.h>

#include "FileStatus.h"
#include "OpenEntry.h"
#include "ReparsePoint.h"

namespace VyrPlatform::FileSystem {

namespace {

/// Fills `entry` from any of the system's structures that describe a file.
template <class Information>
void Describe(const Information& information, Entry& entry) noexcept
{
    const bool isFolder = information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    entry.kind = isFolder ? Kind::Folder : Kind::File;
    if (!isFolder)
        entry.size = Combine(information.nFileSizeHigh, information.nFileSizeLow);
    entry.modified = ToTicks(information.ftLastWriteTime);
    entry.accessed = ToTicks(information.ftLastAccessTime);
    entry.created = ToTicks(information.ftCreationTime);
}

/// The entry of `path`, which is known to exist, in its parent folder.
bool Find(const LongPath& path, WIN32_FIND_DATAW& found) noexcept
{
    return SearchHandle(FindFirstFileW(path.Get(), &found)).IsOpen();
}

/// Describes the target of the link at `path`; leaves `entry` unchanged when there is none.
void DescribeTarget(const LongPath& path, Entry& entry) noexcept
{
    const Handle target = OpenEntry(path, FILE_READ_ATTRIBUTES, Links::Follow);
    BY_HANDLE_FILE_INFORMATION information;
    if (target.IsOpen() && GetFileInformationByHandle(target.Get(), &information))
        Describe(information, entry);
}

/// For a path whose attributes cannot be read: a locked file (its folder still has them) or a device.
Entry QueryUncommon(const LongPath& path, DWORD error) noexcept
{
    Entry entry;
    WIN32_FIND_DATAW found;
    if (error == ERROR_SHARING_VIOLATION && Find(path, found))
        Describe(found, entry);
    else if (GetFileAttributesW(path.Get()) != INVALID_FILE_ATTRIBUTES)
        entry.kind = Kind::Other;
    return entry;
}

} // namespace

Entry Query(const CString& path)
{
    const LongPath longPath(path);
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(longPath.Get(), GetFileExInfoStandard, &data))
        return QueryUncommon(longPath, GetLastError());
    Entry entry;
    WIN32_FIND_DATAW found;
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) && Find(longPath, found) && IsLink(found)) {
        entry.isLink = true;
        entry.kind = Kind::Other;
        DescribeTarget(longPath, entry);
    } else {
        Describe(data, entry);
    }
    return entry;
}

bool Exists(const CString& path)
{
    return GetFileAttributesW(LongPath(path).Get()) != INVALID_FILE_ATTRIBUTES ||
           GetLastError() == ERROR_SHARING_VIOLATION;
}

bool IsFolder(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(LongPath(path).Get());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY))
        return false;
    return !(attributes & FILE_ATTRIBUTE_REPARSE_POINT) || Query(path).kind == Kind::Folder;
}

std::optional<CString> GetLinkTarget(const CString& path)
{
    const std::optional<LinkTarget> target = ParseReparsePoint(ReadReparsePoint(LongPath(path)));
    return target ? std::optional(target->path) : std::nullopt;
}

std::uint32_t CreateFolder(const CString& path)
{
    return CreateDirectoryW(LongPath(path).Get(), nullptr) ? 0 : GetLastError();
}

std::uint32_t RemoveFile(const CString& path)
{
    return DeleteFileW(LongPath(path).Get()) ? 0 : GetLastError();
}

bool IsSeparator(char16_t unit) noexcept
{
    return unit == u'\\' || unit == u'/';
}

char16_t Separator() noexcept
{
    return u'\\';
}

} // namespace VyrPlatform::FileSystem
