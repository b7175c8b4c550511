/// @file
/// The yearly rule of a time zone's clock changes.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace VyrHost::Rename {

/// A rule in the form of POSIX's variable TZ, such as "CET-1CEST,M3.5.0,M10.5.0/3". Source: POSIX.1-2017, "Other
/// Environment Variables", and RFC 9636, section 3.3.1.
class ZoneRule
{
public:
    /// Parses `text`; nothing if it is not such a rule.
    [[nodiscard]] static std::optional<ZoneRule> Read(std::string_view text);

    /// How many seconds the clocks are ahead of UTC at `instant`, in seconds since 1970.
    [[nodiscard]] int SecondsAhead(std::int64_t instant) const;

private:
    friend class ZoneRuleReader;

    /// The moment of a clock change.
    struct Change
    {
        enum class Kind : std::uint8_t
        {
            /// A day from 1 to 365: 29 February is never counted.
            DayWithoutLeapDay,
            /// A day from 0 to 365.
            DayOfYear,
            /// A day of the week in a month.
            WeekOfMonth,
        };
        Kind kind = Kind::DayOfYear;
        int month = 0;
        /// From 1; 5 is the last in its month.
        int week = 0;
        /// Of the week, from Sunday, or of the year.
        int day = 0;
        /// Local time before the change.
        int seconds = 2 * 60 * 60;

        /// The seconds since 1970, as if that local time were UTC.
        [[nodiscard]] std::int64_t In(int year) const;
    };
    struct Summer
    {
        int ahead = 0;
        Change begin;
        Change end;
    };

    int m_ahead = 0;
    std::optional<Summer> m_summer;
};

} // namespace VyrHost::Rename
