/// @file
/// Shifts date-times by amounts of time.
#pragma once

#include <VyrPlatform/time/COleDateTime.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace VyrHost::Metadata {

/// How far a date-time is shifted.
struct Amounts
{
    int years = 0;
    int months = 0;
    int days = 0;
    int hours = 0;
    int minutes = 0;
    int seconds = 0;

    friend bool operator==(const Amounts&, const Amounts&) = default;
};

/// Reads numbers with the units y (years), mo (months), d, h, m (minutes), s, each unit at most once, such as `1h30m`,
/// `-1y 6mo` or `+2d`; a sign in front applies to all.
/// @throws UsageError for any other text, and where all numbers are 0.
[[nodiscard]] Amounts ParseAmounts(std::u16string_view text, const char* option);

/// The seconds from 1 January 1601 00:00 to `local`, which is valid, on a clock without daylight-saving time.
[[nodiscard]] std::int64_t SecondsOnClock(const COleDateTime& local);
/// The inverse; invalid out of the years 1400 to 9999, which are the calendar of DateTimeFuncs.
[[nodiscard]] COleDateTime OnClock(std::int64_t seconds);

/// `local` shifted on the clock without daylight-saving time, and then by the calendar, as
/// DateTimeFuncs::GetCalDateTime does it. Time zones play no part: the result may be a time that clocks skip.
/// @return nothing where the result would leave the years 1400 to 9999.
[[nodiscard]] std::optional<COleDateTime> Shifted(const COleDateTime& local, const Amounts& amounts);

} // namespace VyrHost::Metadata
