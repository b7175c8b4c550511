/// @file
/// Date-times as people type them.
#pragma once

#include <VyrPlatform/time/COleDateTime.h>

#include <optional>
#include <string_view>

namespace VyrHost::Text {

/// A typed date, time of day, or both.
struct TypedDateTime
{
    /// Local time. A date alone has the time 00:00; of a time alone, ignore the date.
    COleDateTime value;
    bool hasDate = false;
    bool hasTime = false;
};

/// Reads `2024-01-05`, `2024/01/05` and the short date of the user's locale, each with or without a time of day such as
/// `10:30` or `10:30:00` after a blank or a `T`; and a time of day alone.
/// @return nothing for any other text, and for a date or time that does not exist.
[[nodiscard]] std::optional<TypedDateTime> ReadTypedDateTime(std::u16string_view text);

} // namespace VyrHost::Text
