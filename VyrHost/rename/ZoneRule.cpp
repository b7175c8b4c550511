#include <VyrHost/rename/ZoneRule.h>

#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <charconv>
#include <chrono>

namespace VyrHost::Rename {

namespace {

using VyrPlatform::secondsPerDay;

constexpr int secondsPerMinute = 60;
constexpr int secondsPerHour = 60 * secondsPerMinute;

int YearOf(std::int64_t seconds)
{
    using namespace std::chrono;
    // Bounds instants for which the calendar has no year.
    constexpr std::int64_t most = 30'000 * 366 * secondsPerDay;
    const sys_seconds instant{std::chrono::seconds{std::clamp(seconds, -most, most)}};
    return static_cast<int>(year_month_day(floor<days>(instant)).year());
}

} // namespace

/// Parses the text of a rule.
class ZoneRuleReader
{
public:
    explicit ZoneRuleReader(std::string_view text) : m_rest(text) {}

    std::optional<ZoneRule> Run()
    {
        ZoneRule rule;
        SkipName();
        // The text gives the offset behind UTC.
        rule.m_ahead = -Time();
        if (!m_rest.empty())
            rule.m_summer = TakeSummer(rule.m_ahead);
        return m_failed || !m_rest.empty() ? std::nullopt : std::optional(rule);
    }

private:
    using Change = ZoneRule::Change;

    bool TakeIf(char wanted)
    {
        const bool isThere = m_rest.starts_with(wanted);
        m_rest.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }
    void Require(bool holds) { m_failed = m_failed || !holds; }

    /// Three letters at least, or anything in pointed brackets.
    void SkipName()
    {
        const bool inBrackets = TakeIf('<');
        const auto end = std::find_if(m_rest.begin(), m_rest.end(), [inBrackets](char unit) {
            const bool isLetter = (unit >= 'A' && unit <= 'Z') || (unit >= 'a' && unit <= 'z');
            return inBrackets ? unit == '>' : !isLetter;
        });
        const auto length = static_cast<std::size_t>(end - m_rest.begin());
        Require(length >= 3);
        m_rest.remove_prefix(length);
        Require(!inBrackets || TakeIf('>'));
    }

    int Number(int least, int most)
    {
        int number = -1;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), number);
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        Require(error == std::errc() && number >= least && number <= most);
        return m_failed ? least : number;
    }

    /// "-3", "5:30", "167": hours, minutes and seconds with a sign.
    int Time()
    {
        constexpr int mostHours = 167;
        const bool isNegative = TakeIf('-');
        if (!isNegative)
            TakeIf('+');
        int seconds = Number(0, mostHours) * secondsPerHour;
        if (TakeIf(':'))
            seconds += Number(0, 59) * secondsPerMinute;
        if (TakeIf(':'))
            seconds += Number(0, 59);
        return isNegative ? -seconds : seconds;
    }

    Change TakeChange()
    {
        Change change;
        Require(TakeIf(','));
        if (TakeIf('M')) {
            change.kind = Change::Kind::WeekOfMonth;
            change.month = Number(1, 12);
            Require(TakeIf('.'));
            change.week = Number(1, 5);
            Require(TakeIf('.'));
            change.day = Number(0, 6);
        } else if (TakeIf('J')) {
            change.kind = Change::Kind::DayWithoutLeapDay;
            change.day = Number(1, 365);
        } else {
            change.day = Number(0, 365);
        }
        if (TakeIf('/'))
            change.seconds = Time();
        return change;
    }

    ZoneRule::Summer TakeSummer(int winterAhead)
    {
        SkipName();
        ZoneRule::Summer summer;
        summer.ahead = m_rest.starts_with(',') ? winterAhead + secondsPerHour : -Time();
        summer.begin = TakeChange();
        summer.end = TakeChange();
        return summer;
    }

    std::string_view m_rest;
    bool m_failed = false;
};

std::int64_t ZoneRule::Change::In(int inYear) const
{
    using namespace std::chrono;
    constexpr unsigned lastWeek = 5;
    constexpr int lastDayOfFebruary = 59;
    const std::chrono::year number{inYear};
    const sys_days newYear = number / January / 1;
    sys_days date = newYear + days{day};
    if (kind == Kind::DayWithoutLeapDay) {
        date = newYear + days{day - 1 + (number.is_leap() && day > lastDayOfFebruary ? 1 : 0)};
    } else if (kind == Kind::WeekOfMonth) {
        const auto inMonth = number / std::chrono::month(static_cast<unsigned>(month));
        const weekday onDay{static_cast<unsigned>(day)};
        date = static_cast<unsigned>(week) == lastWeek ? sys_days(inMonth / onDay[last])
                                                       : sys_days(inMonth / onDay[static_cast<unsigned>(week)]);
    }
    return sys_seconds(date).time_since_epoch().count() + seconds;
}

std::optional<ZoneRule> ZoneRule::Read(std::string_view text)
{
    return ZoneRuleReader(text).Run();
}

int ZoneRule::SecondsAhead(std::int64_t instant) const
{
    if (!m_summer)
        return m_ahead;
    const int year = YearOf(instant + m_ahead);
    const std::int64_t begin = m_summer->begin.In(year) - m_ahead;
    const std::int64_t end = m_summer->end.In(year) - m_summer->ahead;
    // In the southern hemisphere, summer includes the new year.
    const bool isSummer = begin < end ? instant >= begin && instant < end : instant >= begin || instant < end;
    return isSummer ? m_summer->ahead : m_ahead;
}

} // namespace VyrHost::Rename
