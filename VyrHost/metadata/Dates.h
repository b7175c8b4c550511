/// @file
/// The times of a file as text, and the date in its name.
#pragma once

#include <VyrPlatform/files/ExactState.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace VyrHost::Metadata {

/// The times of a file.
enum class FileDate : std::uint8_t
{
    Modified,
    Created,
    Accessed
};

inline constexpr std::array<FileDate, 3> fileDates{FileDate::Modified, FileDate::Created, FileDate::Accessed};

/// "modified", "created" or "accessed".
[[nodiscard]] std::u16string_view WordFor(FileDate date);

/// The time as a part of a file's exact state.
[[nodiscard]] VyrPlatform::ExactState::Part PartOf(FileDate date);

/// The time of the file or folder at `path`; nothing where it cannot be read.
[[nodiscard]] std::optional<VyrPlatform::FileTicks> TicksOf(const CString& path, FileDate date);

/// `dateTime` as `yyyy-MM-dd HH:mm:ss`; empty for an invalid one.
[[nodiscard]] CString Shown(const COleDateTime& dateTime);
/// The local time of `ticks` in the same form.
[[nodiscard]] CString Shown(VyrPlatform::FileTicks ticks);

enum class NameDateProblem : std::uint8_t
{
    None,
    /// No digits have the form of a date.
    NoDate,
    /// Some have, but there is no such day.
    NoSuchDay,
    /// There is such a day, but not the time after it.
    NoSuchTime
};

/// A date in a name.
struct NameDate
{
    /// Local time; midnight for a date alone.
    COleDateTime value;
    bool hasTime = false;
    int milliseconds = 0;
};

/// Finds the first date in `name`.
///
/// A date is a year from 1900 to 2099, a month and a day. It does not follow a digit. Its parts have no separators, or
/// the same one of `-`, `_`, `.` and blank.
///
/// A time of day may follow, directly or after one of `-`, `_`, `.`, `T`, blank and " at ": two digits each for hour,
/// minute and optionally second, without separators or with `-`, `_`, `.` or `:`. Three digits of milliseconds may
/// follow, also after `.` or `,`. Behind " at " an hour before a separator may have one digit, and AM or PM may follow.
///
/// A date is skipped when there is no such day, or when the hour, minute and second after it are impossible. Other
/// digits after a date are not a time.
///
/// "IMG_20240105_103000.jpg" and "2024-01-05 10.30.00.jpg" contain 5 January 2024 10:30:00, "IMG-20240105-WA0001.jpg"
/// contains 5 January 2024 without a time.
/// @param problem  gets the reason when there is no result.
[[nodiscard]] std::optional<NameDate> FindNameDate(std::u16string_view name, NameDateProblem& problem);

} // namespace VyrHost::Metadata
