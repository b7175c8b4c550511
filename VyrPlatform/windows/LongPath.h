// A path in the form in which Windows takes it whatever its length.
#pragma once

#include <VyrPlatform/CString.h>
#include <VyrPlatform/Export.h>

#include <string_view>

namespace VyrPlatform {

/// `fullPath` (a drive, or two backslashes, and no "." or ".." parts) with the prefix that lifts the limit of 260 code
/// units; unchanged when it has one of the system's prefixes already. Exported for its tests alone.
[[nodiscard]] VYR_PLATFORM_API CString AddLongPathPrefix(const CString& fullPath);

/// `path` as the system's functions take it: as it stands when it is full and short, else made full and prefixed as its
/// length needs. Exported for its tests alone.
[[nodiscard]] VYR_PLATFORM_API CString ToSystemPath(const CString& path);

/// A path for the length of a call of the system.
class LongPath
{
public:
    /// `path` with `suffix` (the name of a stream, a pattern) behind it.
    explicit LongPath(const CString& path, std::u16string_view suffix = {});

    /// The path. One that no file can have (with a NUL in it, or empty) gives one that the system refuses.
    [[nodiscard]] const wchar_t* Get() const noexcept;

private:
    CString m_path;
};

} // namespace VyrPlatform
