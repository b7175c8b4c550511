// The traits of a folder on Windows: its attributes.
#include <VyrHostPlatform/FolderTraits.h>

#include <VyrPlatform/windows/files/LongPath.h>

#include <windows.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

std::optional<FolderTraits> GetFolderTraits(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(LongPath(path).Get());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY))
        return std::nullopt;
    FolderTraits traits;
    traits.mode = attributes;
    return traits;
}

std::uint32_t SetFolderExtras(const CString&, const FolderTraits&)
{
    return ERROR_SUCCESS;
}

std::uint32_t SetFolderMode(const CString& path, const FolderTraits& traits)
{
    // The other bits belong to the storage, not to the folder.
    constexpr DWORD settable = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                               FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD attributes = traits.mode & settable;
    const LongPath longPath(path);
    return SetFileAttributesW(longPath.Get(), attributes ? attributes : FILE_ATTRIBUTE_NORMAL) ? ERROR_SUCCESS
                                                                                               : GetLastError();
}

} // namespace VyrHostPlatform
