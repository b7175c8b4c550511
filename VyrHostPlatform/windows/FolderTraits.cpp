// The traits of a folder on Windows: its attributes, as text in decimal. A new folder inherits its access list.
#include <VyrHostPlatform/FolderTraits.h>

#include <VyrPlatform/windows/files/LongPath.h>

#include <windows.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

/// The other bits belong to the storage, not to the folder.
constexpr DWORD settable = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                           FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

} // namespace

std::optional<FolderTraits> GetFolderTraits(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(LongPath(path).Get());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY))
        return std::nullopt;
    FolderTraits traits;
    traits.mode = attributes & settable;
    return traits;
}

CString ToText(const FolderTraits& traits)
{
    CString text;
    text.Format(u"%u", traits.mode);
    return text;
}

std::optional<FolderTraits> ParseFolderTraits(const CString& text)
{
    FolderTraits traits;
    for (const char16_t unit : text.View()) {
        if (unit < u'0' || unit > u'9' || traits.mode > settable)
            return std::nullopt;
        traits.mode = traits.mode * 10 + (unit - u'0');
    }
    const bool isSettable = (traits.mode & ~settable) == 0;
    return !text.IsEmpty() && isSettable ? std::optional(traits) : std::nullopt;
}

std::uint32_t SetFolderExtras(const CString&, const FolderTraits&)
{
    return ERROR_SUCCESS;
}

std::uint32_t SetFolderMode(const CString& path, const FolderTraits& traits)
{
    const DWORD attributes = traits.mode ? traits.mode : FILE_ATTRIBUTE_NORMAL;
    return SetFileAttributesW(LongPath(path).Get(), attributes) ? ERROR_SUCCESS : GetLastError();
}

} // namespace VyrHostPlatform
