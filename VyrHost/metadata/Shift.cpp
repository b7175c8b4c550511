// Reads amounts of time, and has the library shift by them.
#include <VyrHost/metadata/Shift.h>

#include <VyrHost/text/Errors.h>
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

namespace VyrHost::Metadata {

namespace {

namespace FileTimes = VyrPlatform::FileTimes;
using VyrLibraryFuncs::DateTimeFuncs;
using VyrPlatform::FileTicks;

/// `local` shifted by `amounts`, which are not all 0, by the library; invalid where it would leave the calendar: the
/// library does not change such a date.
COleDateTime Moved(const COleDateTime& local, const Amounts& amounts)
{
    constexpr int sameForAll = 1;
    DateTimeFuncs::STAGGERITEM item;
    item.numberingMode = sameForAll;
    item.years = amounts.years;
    item.months = amounts.months;
    item.days = amounts.days;
    item.hours = amounts.hours;
    item.minutes = amounts.minutes;
    item.seconds = amounts.seconds;
    const FILETIME time = DateTimeFuncs::GetStaggerFileDateTime(0, 1, local, item);
    const auto ticks =
        static_cast<FileTicks>(std::uint64_t{time.dwHighDateTime} << 32 | std::uint64_t{time.dwLowDateTime});
    // The library converts local time to an instant by the system's conversion; this is the inverse.
    const COleDateTime moved = FileTimes::ToLocalForWriting(ticks);
    if (ticks == 0 || moved == local)
        return VyrPlatform::DateTimePattern::Invalid();
    return moved;
}

} // namespace

std::optional<COleDateTime> Shifted(const COleDateTime& local, const Amounts& amounts)
{
    const Amounts onTheClock{0, 0, 0, amounts.hours, amounts.minutes, amounts.seconds};
    const Amounts byTheCalendar{amounts.years, amounts.months, amounts.days, 0, 0, 0};
    COleDateTime shifted = local;
    for (const Amounts& part : {onTheClock, byTheCalendar})
        if (part != Amounts() && shifted.GetStatus() == COleDateTime::valid)
            shifted = Moved(shifted, part);
    return shifted.GetStatus() == COleDateTime::valid ? std::optional(shifted) : std::nullopt;
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
