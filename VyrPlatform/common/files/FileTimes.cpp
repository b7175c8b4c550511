// The system's look-up of an offset is slow, so the offsets of whole days are cached.
#include <VyrPlatform/files/FileTimes.h>

#include <VyrPlatform/common/time/LocalOffset.h>
#include <VyrPlatform/time/Epochs.h>

#include <array>
#include <atomic>
#include <chrono>

namespace VyrPlatform::FileTimes {

namespace {

/// The limits of the calendar, in seconds since 1970.
constexpr std::int64_t firstSecond =
    std::chrono::sys_seconds(std::chrono::sys_days(std::chrono::January / 1 / 100)).time_since_epoch().count();
constexpr std::int64_t lastSecond =
    std::chrono::sys_seconds(std::chrono::sys_days(std::chrono::January / 1 / 10000)).time_since_epoch().count() - 1;

constexpr std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) noexcept
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

/// Counts the time zones that the process has had.
std::atomic<unsigned> timeZoneNumber = 1;

/// The offset of a day that has only one (in UTC).
struct DayOffset
{
    std::int64_t day = 0;
    unsigned timeZone = 0;
    int offset = 0;
};

/// Caches in `known` the offset of `day` if it has only one. No zone changes its offset twice within a day, so it has
/// only one if both its ends have the same.
std::optional<int> LookUpOffset(DayOffset& known, std::int64_t day, unsigned timeZone, std::int64_t unixSeconds)
{
    const std::optional<int> atStart = GetLocalOffset(day * secondsPerDay);
    if (!atStart || atStart != GetLocalOffset((day + 1) * secondsPerDay - 1))
        return GetLocalOffset(unixSeconds);
    known = {day, timeZone, *atStart};
    return atStart;
}

std::optional<int> FindOffset(std::int64_t unixSeconds)
{
    constexpr std::size_t keptDays = 64;
    thread_local std::array<DayOffset, keptDays> kept;

    const std::int64_t day = FloorDivide(unixSeconds, secondsPerDay);
    const unsigned timeZone = timeZoneNumber.load(std::memory_order_acquire);
    DayOffset& known = kept[static_cast<std::uint64_t>(day) % keptDays];
    if (known.day == day && known.timeZone == timeZone)
        return known.offset;
    return LookUpOffset(known, day, timeZone, unixSeconds);
}

} // namespace

COleDateTime ToLocal(FileTicks ticks)
{
    using namespace std::chrono;

    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    const std::int64_t unixSeconds = FloorDivide(ticks, ticksPerSecond) - secondsToUnixEpoch;
    // No offset is a day long.
    if (unixSeconds < firstSecond - secondsPerDay || unixSeconds > lastSecond + secondsPerDay)
        return invalid;
    const std::optional<int> offset = FindOffset(unixSeconds);
    if (!offset)
        return invalid;
    const sys_seconds local{seconds(unixSeconds + *offset)};
    const auto day = floor<days>(local);
    const year_month_day date(day);
    const auto second = static_cast<int>((local - day).count());
    return COleDateTime(static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                        static_cast<int>(static_cast<unsigned>(date.day())), second / 3600, second / 60 % 60,
                        second % 60);
}

std::optional<FileTicks> FromLocal(const COleDateTime& local)
{
    using namespace std::chrono;

    // Also where the status is valid and the count of days is beyond the calendar.
    if (local.GetYear() < 0)
        return std::nullopt;
    const year_month_day date(year(local.GetYear()), month(static_cast<unsigned>(local.GetMonth())),
                              day(static_cast<unsigned>(local.GetDay())));
    const std::int64_t shown =
        (sys_seconds(sys_days(date)) + hours(local.GetHour()) + minutes(local.GetMinute()) + seconds(local.GetSecond()))
            .time_since_epoch()
            .count();
    // Clocks are not changed twice within two days.
    const std::optional<int> before = FindOffset(shown - secondsPerDay);
    const std::optional<int> after = FindOffset(shown + secondsPerDay);
    if (!before || !after)
        return std::nullopt;
    const bool isAfter = FindOffset(shown - *before) != before && FindOffset(shown - *after) == after;
    return (shown - (isAfter ? *after : *before) + secondsToUnixEpoch) * ticksPerSecond;
}

void FollowTimeZone()
{
    ReadTimeZone();
    timeZoneNumber.fetch_add(1, std::memory_order_release);
}

} // namespace VyrPlatform::FileTimes
