/// @file
/// The times of a file as people see them.
#pragma once

#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace VyrHost::Metadata {

/// The times that a file has besides what stands in it.
enum class FileDate : std::uint8_t
{
    Modified,
    Created,
    Accessed
};

inline constexpr std::array<FileDate, 3> fileDates{FileDate::Modified, FileDate::Created, FileDate::Accessed};

/// "modified", "created" or "accessed".
[[nodiscard]] std::u16string_view WordFor(FileDate date);

/// When the file or folder at `path` was modified and so on; nothing where it cannot be asked.
[[nodiscard]] std::optional<VyrPlatform::FileTicks> TicksOf(const CString& path, FileDate date);

/// `dateTime` as `yyyy-MM-dd HH:mm:ss`; empty for one that is not valid.
[[nodiscard]] CString Shown(const COleDateTime& dateTime);
/// The local time of `ticks` likewise.
[[nodiscard]] CString Shown(VyrPlatform::FileTicks ticks);

} // namespace VyrHost::Metadata
