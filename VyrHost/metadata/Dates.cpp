#include <VyrHost/metadata/Dates.h>

#include <VyrPlatform/text/Digits.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace VyrHost::Metadata {

using VyrPlatform::IsDigit;

namespace FileTimes = VyrPlatform::FileTimes;

std::u16string_view WordFor(FileDate date)
{
    switch (date) {
    case FileDate::Modified:
        return u"modified";
    case FileDate::Created:
        return u"created";
    case FileDate::Accessed:
        break;
    }
    return u"accessed";
}

VyrPlatform::ExactState::Part PartOf(FileDate date)
{
    using VyrPlatform::ExactState::Part;
    switch (date) {
    case FileDate::Modified:
        return Part::Modified;
    case FileDate::Created:
        return Part::Created;
    case FileDate::Accessed:
        break;
    }
    return Part::Accessed;
}

std::optional<VyrPlatform::FileTicks> TicksOf(const CString& path, FileDate date)
{
    switch (date) {
    case FileDate::Modified:
        return FileTimes::GetModified(path);
    case FileDate::Created:
        return FileTimes::GetCreated(path);
    case FileDate::Accessed:
        break;
    }
    return FileTimes::GetAccessed(path);
}

CString Shown(const COleDateTime& dateTime)
{
    return VyrPlatform::DateTimePattern::Write(dateTime, u"%Y-%m-%d %H:%M:%S");
}

CString Shown(VyrPlatform::FileTicks ticks)
{
    return Shown(FileTimes::ToLocal(ticks));
}

namespace {

/// Reads from the front of a text.
class Front
{
public:
    explicit Front(std::u16string_view text) : m_rest(text) {}

    /// Reads exactly `count` digits.
    bool TakeNumber(std::size_t count, int& number)
    {
        if (m_rest.size() < count)
            return false;
        number = 0;
        for (const char16_t unit : m_rest.substr(0, count)) {
            if (!IsDigit(unit))
                return false;
            number = number * 10 + (unit - u'0');
        }
        m_rest.remove_prefix(count);
        return true;
    }

    /// Reads one code unit if it is one of `separators`, and returns it; else 0.
    char16_t TakeSeparator(std::u16string_view separators)
    {
        if (m_rest.empty() || separators.find(m_rest.front()) == std::u16string_view::npos)
            return 0;
        const char16_t separator = m_rest.front();
        m_rest.remove_prefix(1);
        return separator;
    }

    /// Reads `text` if it is at the front.
    bool TakeText(std::u16string_view text)
    {
        if (!m_rest.starts_with(text))
            return false;
        m_rest.remove_prefix(text.size());
        return true;
    }

    [[nodiscard]] bool StartsWithCapital() const
    {
        return !m_rest.empty() && m_rest.front() >= u'A' && m_rest.front() <= u'Z';
    }
    [[nodiscard]] bool StartsWithDigit() const { return CountDigits() > 0; }
    [[nodiscard]] std::size_t CountDigits() const
    {
        const auto* const end = std::find_if_not(m_rest.begin(), m_rest.end(), IsDigit);
        return static_cast<std::size_t>(end - m_rest.begin());
    }

private:
    std::u16string_view m_rest;
};

struct Day
{
    int year = 0;
    int month = 0;
    int day = 0;
};

/// Whether a date is at the front, even an impossible one.
bool TakeDay(Front& front, Day& day)
{
    constexpr std::u16string_view separators = u"-_. ";
    if (!front.TakeNumber(4, day.year) || day.year < 1900 || day.year > 2099)
        return false;
    const char16_t separator = front.TakeSeparator(separators);
    if (!front.TakeNumber(2, day.month))
        return false;
    if (separator != 0 && front.TakeSeparator(separators) != separator)
        return false;
    return front.TakeNumber(2, day.day);
}

enum class TimeForm : std::uint8_t
{
    None,
    Time,
    /// Hour, minute and second are all there, but there is no such time.
    Impossible
};

/// A time of day.
struct Time
{
    TimeForm form = TimeForm::None;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int milliseconds = 0;
};

/// Whether AM or PM follows, as screenshots have it, with a narrow blank before it or another.
bool TakeHalfOfDay(Front& front, bool& isAfternoon)
{
    front.TakeSeparator(u" \u00a0\u202f");
    isAfternoon = front.TakeText(u"PM");
    return (isAfternoon || front.TakeText(u"AM")) && !front.StartsWithCapital();
}

/// The hour of the day (0 to 23) for `hour` before or after noon. One that is not 1 to 12 stays as it is.
int HourOfDay(int hour, bool isAfternoon)
{
    constexpr int noon = 12;
    if (hour < 1 || hour > noon)
        return hour;
    return hour % noon + (isAfternoon ? noon : 0);
}

/// The time of day at the front of a text.
Time TakeTime(Front front)
{
    constexpr std::u16string_view separators = u"-_.:";
    constexpr int hoursPerDay = 24;
    constexpr int sixty = 60;
    const Time none;
    int hour = 0;
    int minute = 0;
    int second = 0;
    const bool isSentence = front.TakeText(u" at ");
    if (!isSentence)
        front.TakeSeparator(u"-_.T ");
    // An hour of one digit: a separator and minutes follow.
    const std::size_t digitsOfHour = isSentence && front.CountDigits() == 1 ? 1 : 2;
    if (!front.TakeNumber(digitsOfHour, hour))
        return none;
    const bool isSeparated = front.TakeSeparator(separators) != 0;
    if (!front.TakeNumber(2, minute))
        return none;
    // Without separators all six digits are together, followed by milliseconds: four digits alone, or other numbers of
    // digits, may be a number of another sort.
    constexpr std::size_t digitsOfFraction = 3;
    const bool hasSecond = (!isSeparated || front.TakeSeparator(separators) != 0) && front.TakeNumber(2, second);
    const std::size_t behind = front.CountDigits();
    if ((!hasSecond && !isSeparated) || (behind != 0 && behind != digitsOfFraction))
        return none;
    if (hour >= hoursPerDay || minute >= sixty || second >= sixty)
        return {hasSecond && behind == 0 ? TimeForm::Impossible : TimeForm::None};
    int milliseconds = 0;
    if (hasSecond && (behind != 0 || front.TakeSeparator(u".,") != 0) && front.CountDigits() == digitsOfFraction)
        front.TakeNumber(digitsOfFraction, milliseconds);
    bool isAfternoon = false;
    if (isSentence && TakeHalfOfDay(front, isAfternoon))
        hour = HourOfDay(hour, isAfternoon);
    return {TimeForm::Time, hour, minute, second, milliseconds};
}

bool IsPossible(const COleDateTime& dateTime)
{
    return dateTime.GetStatus() == COleDateTime::valid;
}

} // namespace

std::optional<NameDate> FindNameDate(std::u16string_view name, NameDateProblem& problem)
{
    problem = NameDateProblem::NoDate;
    for (std::size_t at = 0; at < name.size(); ++at) {
        if (!IsDigit(name[at]) || (at > 0 && IsDigit(name[at - 1])))
            continue;
        Front front(name.substr(at));
        Day day;
        if (!TakeDay(front, day))
            continue;
        const Time time = TakeTime(front);
        // More digits that are not a time belong to a number of another sort.
        if (front.StartsWithDigit() && time.form != TimeForm::Time)
            continue;
        const COleDateTime date(day.year, day.month, day.day, time.hour, time.minute, time.second);
        if (!IsPossible(date)) {
            problem = NameDateProblem::NoSuchDay;
            continue;
        }
        if (time.form == TimeForm::Impossible) {
            problem = NameDateProblem::NoSuchTime;
            continue;
        }
        problem = NameDateProblem::None;
        return NameDate{date, time.form == TimeForm::Time, time.milliseconds};
    }
    return std::nullopt;
}

} // namespace VyrHost::Metadata
