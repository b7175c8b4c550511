// A path of any length as Windows takes it.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <string_view>

namespace VyrPlatform {

/// `fullPath` (a drive, or two backslashes, and no "." or ".." parts) with the prefix that lifts the limit of 260 code
/// units; unchanged when it already has one of the system's prefixes. Exported only for its tests.
[[nodiscard]] VYR_PLATFORM_API CString AddLongPathPrefix(const CString& fullPath);

/// `path` as a full path from the current folder and drive, with backslashes and without "." and ".." parts; empty when
/// the system fails.
[[nodiscard]] VYR_PLATFORM_API CString MakeFullPath(const CString& path);

/// `path`, followed by `suffix` (the name of a stream, a pattern), as the system's functions take it: unchanged when it
/// is full and short, else made full and prefixed if its length requires it. Empty for a path that no file can have
/// (empty, or with a NUL), which the system refuses. Exported only for its tests.
[[nodiscard]] VYR_PLATFORM_API CString ToSystemPath(const CString& path, std::u16string_view suffix = {});

/// A path for the duration of a system call.
class LongPath
{
public:
    /// The result of ToSystemPath.
    explicit LongPath(const CString& path, std::u16string_view suffix = {}) : m_path(ToSystemPath(path, suffix)) {}

    [[nodiscard]] const wchar_t* Get() const noexcept { return ToWide(m_path); }

private:
    CString m_path;
};

} // namespace VyrPlatform
