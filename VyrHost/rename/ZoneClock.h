/// @file
/// The local time of a time zone.
#pragma once

#include <VyrHost/rename/ZoneRule.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace VyrHost::Rename {

class ZoneClock
{
public:
    /// A clock with the fixed offset `secondsAhead` from UTC.
    explicit ZoneClock(int secondsAhead) : m_atFirst(secondsAhead) {}

    /// Parses the file of a zone, from TimeZoneFile; nothing for other bytes. Source: RFC 9636, section 3.
    [[nodiscard]] static std::optional<ZoneClock> Read(std::string_view file);

    /// How many seconds the clock is ahead of UTC at `instant`, in seconds since 1970.
    [[nodiscard]] int SecondsAhead(std::int64_t instant) const;

private:
    struct Change
    {
        std::int64_t instant;
        int secondsAhead;
    };

    /// Until the first change.
    int m_atFirst;
    /// In their order.
    std::vector<Change> m_changes;
    /// From the last change on.
    std::optional<ZoneRule> m_rule;
};

} // namespace VyrHost::Rename
