// The state of a folder on Windows: its attributes, in decimal. A new folder inherits its access list.
#include <VyrHostPlatform/FolderState.h>

#include <VyrPlatform/windows/files/LongPath.h>

#include <windows.h>

namespace VyrHostPlatform {

using VyrPlatform::LongPath;

namespace {

/// Those that SetFileAttributesW sets.
constexpr DWORD settable = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                           FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

std::optional<DWORD> Parse(const CString& state)
{
    DWORD attributes = 0;
    for (const char16_t unit : state.View()) {
        if (unit < u'0' || unit > u'9' || attributes > settable)
            return std::nullopt;
        attributes = attributes * 10 + static_cast<DWORD>(unit - u'0');
    }
    const bool isSettable = (attributes & ~settable) == 0;
    return !state.IsEmpty() && isSettable ? std::optional(attributes) : std::nullopt;
}

} // namespace

std::optional<CString> ReadFolderState(const CString& path, std::uint32_t& error)
{
    const DWORD attributes = GetFileAttributesW(LongPath(path).Get());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        error = GetLastError();
        return std::nullopt;
    }
    CString text;
    text.Format(u"%u", attributes & settable);
    return text;
}

std::uint32_t RestoreFolderState(const CString& path, const CString& state)
{
    const std::optional<DWORD> attributes = Parse(state);
    if (!attributes)
        return ERROR_INVALID_PARAMETER;
    return SetFileAttributesW(LongPath(path).Get(), *attributes) ? ERROR_SUCCESS : GetLastError();
}

bool IsFolderState(const CString& state)
{
    return Parse(state).has_value();
}

} // namespace VyrHostPlatform
