/// @file
/// The times of a file as people see them, and the date that its name holds.
#pragma once

#include <VyrHost/text/TypedDateTime.h>
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

enum class NameDateProblem : std::uint8_t
{
    None,
    /// No digits stand as those of a date do.
    NoDate,
    /// Some do, but there is no such day.
    NoSuchDay
};

/// Finds the first date in `name`: a year from 1900 to 2099, a month and a day, without separators or with one and the
/// same of `-`, `_`, `.` and blank between them, and no further digit before it. A time of day may follow behind
/// nothing or one of `-`, `_`, `.`, `T` and blank: two digits each for hour, minute and, unless it ends there, second,
/// without separators or with `-`, `_`, `.` or `:` between them; three digits of milliseconds may follow. What is no
/// possible time is left out.
///
///     "IMG_20240105_103000.jpg" and "2024-01-05 10.30.00.jpg" hold 5 January 2024 10:30:00, "IMG-20240105-WA0001.jpg"
///     holds 5 January 2024 without a time.
/// @param problem  why nothing is returned.
[[nodiscard]] std::optional<Text::TypedDateTime> FindNameDate(std::u16string_view name, NameDateProblem& problem);

} // namespace VyrHost::Metadata
