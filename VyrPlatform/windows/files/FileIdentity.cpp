#include <VyrPlatform/files/FileIdentity.h>

#include "FileStatus.h"
#include "OpenEntry.h"

namespace VyrPlatform {

namespace {

FileSystem::Kind KindOf(DWORD attributes) noexcept
{
    if (attributes & FILE_ATTRIBUTE_DIRECTORY)
        return FileSystem::Kind::Folder;
    return FileSystem::Kind::File;
}

/// Whether the opened reparse point leads to another path.
bool IsLink(HANDLE file) noexcept
{
    FILE_ATTRIBUTE_TAG_INFO information;
    return GetFileInformationByHandleEx(file, FileAttributeTagInfo, &information, sizeof(information)) &&
           IsReparseTagNameSurrogate(information.ReparseTag);
}

FileState Describe(HANDLE file) noexcept
{
    FileState state;
    BY_HANDLE_FILE_INFORMATION information;
    if (!GetFileInformationByHandle(file, &information)) {
        state.error = GetLastError();
        return state;
    }
    state.kind = KindOf(information.dwFileAttributes);
    if ((information.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) && IsLink(file))
        state.kind = FileSystem::Kind::Other;
    if (state.kind == FileSystem::Kind::File)
        state.size = Combine(information.nFileSizeHigh, information.nFileSizeLow);
    state.identity.device = information.dwVolumeSerialNumber;
    state.identity.number = static_cast<std::uint64_t>(Combine(information.nFileIndexHigh, information.nFileIndexLow));
    state.modified = ToTicks(information.ftLastWriteTime);
    state.links = information.nNumberOfLinks;
    return state;
}

} // namespace

FileState LookAtFile(const CString& path)
{
    const Handle file = OpenEntry(LongPath(path), FILE_READ_ATTRIBUTES, Links::Keep);
    if (file.IsOpen())
        return Describe(file.Get());
    FileState missing;
    missing.error = GetLastError();
    return missing;
}

} // namespace VyrPlatform
