// A path in the form in which Windows takes it whatever its length.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <string_view>

namespace VyrPlatform {

/// `fullPath` (a drive, or two backslashes, and no "." or ".." parts) with the prefix that lifts the limit of 260 code
/// units; unchanged when it has one of the system's prefixes already. Exported for its tests alone.
[[nodiscard]] VYR_PLATFORM_API CString AddLongPathPrefix(const CString& fullPath);

/// `path` from the current folder and drive, with backslashes and without "." and ".." parts; empty when the system
/// cannot tell it.
[[nodiscard]] VYR_PLATFORM_API CString MakeFullPath(const CString& path);

/// `path`, with `suffix` (the name of a stream, a pattern) behind it, as the system's functions take it: as it stands
/// when it is full and short, else made full and prefixed as its length needs. Empty for a path that no file can have
/// (with a NUL in it, or empty), which the system refuses. Exported for its tests alone.
[[nodiscard]] VYR_PLATFORM_API CString ToSystemPath(const CString& path, std::u16string_view suffix = {});

/// A path for the length of a call of the system.
class LongPath
{
public:
    /// The path as ToSystemPath makes it.
    explicit LongPath(const CString& path, std::u16string_view suffix = {}) : m_path(ToSystemPath(path, suffix)) {}

    [[nodiscard]] const wchar_t* Get() const noexcept { return ToWide(m_path); }

private:
    CString m_path;
};

} // namespace VyrPlatform
