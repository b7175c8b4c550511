// Reads amounts of time, and shifts by them: on the clock here, by the calendar in the library.
#include <VyrHost/metadata/Shift.h>

#include <VyrHost/text/Errors.h>
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

namespace VyrHost::Metadata {

namespace {

using VyrLibraryFuncs::DateTimeFuncs;

bool IsValid(const COleDateTime& dateTime)
{
    return dateTime.GetStatus() == COleDateTime::valid;
}

constexpr std::chrono::sys_days clockStart = std::chrono::year{1601} / 1 / 1;

/// No time zone is asked, as it has no answer for an hour that clocks skip.
COleDateTime MovedOnClock(const COleDateTime& local, const Amounts& amounts)
{
    constexpr std::int64_t perMinute = 60;
    constexpr std::int64_t perHour = 60 * perMinute;
    return OnClock(SecondsOnClock(local) + perHour * amounts.hours + perMinute * amounts.minutes + amounts.seconds);
}

/// The library leaves a date alone that would leave the calendar.
COleDateTime MovedByCalendar(const COleDateTime& local, const Amounts& amounts)
{
    const COleDateTime moved = DateTimeFuncs::GetCalDateTime(local, amounts.years, amounts.months, amounts.days);
    return moved == local ? VyrPlatform::DateTimePattern::Invalid() : moved;
}

} // namespace

std::int64_t SecondsOnClock(const COleDateTime& local)
{
    using namespace std::chrono;
    const sys_days day = year{local.GetYear()} / local.GetMonth() / local.GetDay();
    const auto time = day + hours{local.GetHour()} + minutes{local.GetMinute()} + seconds{local.GetSecond()};
    return (time - clockStart).count();
}

COleDateTime OnClock(std::int64_t seconds)
{
    using namespace std::chrono;
    constexpr sys_days first = year{1400} / 1 / 1;
    constexpr sys_days end = year{10'000} / 1 / 1;
    const sys_seconds time = clockStart + std::chrono::seconds{seconds};
    if (time < first || time >= end)
        return VyrPlatform::DateTimePattern::Invalid();
    const auto day = floor<days>(time);
    const year_month_day date{day};
    const hh_mm_ss clock{time - day};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(clock.hours().count()),
            static_cast<int>(clock.minutes().count()),
            static_cast<int>(clock.seconds().count())};
}

std::optional<COleDateTime> Shifted(const COleDateTime& local, const Amounts& amounts)
{
    COleDateTime shifted = local;
    if (IsValid(shifted) && (amounts.hours != 0 || amounts.minutes != 0 || amounts.seconds != 0))
        shifted = MovedOnClock(shifted, amounts);
    if (IsValid(shifted) && (amounts.years != 0 || amounts.months != 0 || amounts.days != 0))
        shifted = MovedByCalendar(shifted, amounts);
    return IsValid(shifted) ? std::optional(shifted) : std::nullopt;
}

Amounts ParseAmounts(std::u16string_view text, const char* option)
{
    constexpr std::pair<std::u16string_view, int Amounts::*> units[] = {
        {u"mo", &Amounts::months}, {u"y", &Amounts::years},   {u"d", &Amounts::days},
        {u"h", &Amounts::hours},   {u"m", &Amounts::minutes}, {u"s", &Amounts::seconds},
    };
    constexpr const char* expected = "numbers with units are expected, such as 1h30m, -1y, 6mo or 2d (y, mo, d, h, m, "
                                     "s), each unit once and not all 0";
    constexpr int most = 1'000'000;
    std::u16string_view rest = text;
    const bool isNegative = rest.starts_with(u'-');
    if (isNegative || rest.starts_with(u'+'))
        rest.remove_prefix(1);
    Amounts amounts;
    std::vector<int Amounts::*> given;
    while (!rest.empty()) {
        int number = 0;
        std::size_t count = 0;
        for (; count < rest.size() && rest[count] >= u'0' && rest[count] <= u'9' && number <= most; ++count)
            number = number * 10 + (rest[count] - u'0');
        if (count == 0 || number > most)
            Text::RefuseValue(option, text, expected);
        rest.remove_prefix(count);
        const auto* const unit = std::find_if(std::begin(units), std::end(units),
                                              [rest](const auto& known) { return rest.starts_with(known.first); });
        if (unit == std::end(units) || std::find(given.begin(), given.end(), unit->second) != given.end())
            Text::RefuseValue(option, text, expected);
        given.push_back(unit->second);
        amounts.*unit->second = isNegative ? -number : number;
        rest.remove_prefix(unit->first.size());
        if (rest.size() > 1 && rest.front() == u' ')
            rest.remove_prefix(1);
    }
    if (amounts == Amounts())
        Text::RefuseValue(option, text, expected);
    return amounts;
}

} // namespace VyrHost::Metadata
