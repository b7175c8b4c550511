// Calendar arithmetic: years, months and days, and the dates relative to a day.
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>

#include <tests/support/DebugCapture.h>
#include <tests/support/Describe.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <random>
#include <string>

using VyrLibraryFuncs::DateTimeFuncs;
using VyrTests::DebugCapture;
using VyrTests::Describe;

namespace {

constexpr const char* yearText = "Year is out of valid range: 1400..9999";
constexpr const char* dayText = "Day of month value is out of range 1..31";

COleDateTime Date(int year, int month, int day)
{
    return {year, month, day, 0, 0, 0};
}

COleDateTime OfStatus(COleDateTime::DateTimeStatus status, double days = 45'000.5)
{
    COleDateTime dateTime(days);
    dateTime.SetStatus(status);
    return dateTime;
}

std::string Moved(const COleDateTime& dateTime, int years, int months, int days)
{
    return Describe(DateTimeFuncs::GetCalDateTime(dateTime, years, months, days)).substr(0, 10);
}

/// The message of the only log line in `capture`; a test failure when there is not exactly one.
std::string OnlyMessage(const DebugCapture& capture)
{
    const std::vector<CString> texts = capture.Texts();
    EXPECT_EQ(texts.size(), 1U);
    if (texts.size() != 1)
        return {};
    const std::string line = VyrPlatform::Encoding::ToUtf8(texts.front());
    const std::string start = "\",\"2\",\"";
    const std::string end = "\"\r\n";
    const std::size_t at = line.find(start) + start.size();
    EXPECT_TRUE(line.ends_with(end)) << line;
    return line.substr(at, line.size() - end.size() - at);
}

/// A second calendar: whole days by the standard library, months by counting them from the year 0 on.
class Model
{
public:
    Model(int year, int month, int day) : m_date(Make(year, month, day)) {}

    /// @return false when the date leaves the years 1400 to 9999.
    [[nodiscard]] bool AddMonths(std::int64_t count)
    {
        const bool isLast = m_date == std::chrono::year_month_day(m_date.year() / m_date.month() / std::chrono::last);
        const std::int64_t month =
            static_cast<int>(m_date.year()) * std::int64_t{12} + static_cast<unsigned>(m_date.month()) - 1 + count;
        if (month < 1400 * 12 || month > 9999 * 12 + 11)
            return false;
        const std::chrono::year_month_day end =
            std::chrono::year(static_cast<int>(month / 12)) / static_cast<int>(month % 12 + 1) / std::chrono::last;
        m_date = isLast || m_date.day() > end.day() ? end : end.year() / end.month() / m_date.day();
        return true;
    }
    [[nodiscard]] bool AddDays(int count)
    {
        const std::chrono::sys_days day = std::chrono::sys_days(m_date) + std::chrono::days(count);
        if (day < std::chrono::sys_days(Make(1400, 1, 1)) || day > std::chrono::sys_days(Make(9999, 12, 31)))
            return false;
        m_date = day;
        return true;
    }
    [[nodiscard]] COleDateTime Value() const
    {
        return Date(static_cast<int>(m_date.year()), static_cast<int>(static_cast<unsigned>(m_date.month())),
                    static_cast<int>(static_cast<unsigned>(m_date.day())));
    }

private:
    static std::chrono::year_month_day Make(int year, int month, int day)
    {
        return std::chrono::year(year) / month / day;
    }

    std::chrono::year_month_day m_date;
};

} // namespace

TEST(CalDateTime, EndOfMonthStaysEndOfMonth)
{
    EXPECT_EQ(Moved(Date(2023, 1, 31), 0, 1, 0), "2023-02-28");
    EXPECT_EQ(Moved(Date(2024, 1, 31), 0, 1, 0), "2024-02-29");
    EXPECT_EQ(Moved(Date(2023, 2, 28), 1, 0, 0), "2024-02-29");
    EXPECT_EQ(Moved(Date(2024, 2, 29), -1, 0, 0), "2023-02-28");
    EXPECT_EQ(Moved(Date(2024, 4, 30), 0, 1, 0), "2024-05-31");
    EXPECT_EQ(Moved(Date(2024, 5, 30), 0, 1, 0), "2024-06-30");
    EXPECT_EQ(Moved(Date(2024, 2, 28), 0, 1, 0), "2024-03-28");
    EXPECT_EQ(Moved(Date(2024, 3, 30), 0, -1, 0), "2024-02-29");
    EXPECT_EQ(Moved(Date(2024, 5, 31), 0, -1, 0), "2024-04-30");
}

TEST(CalDateTime, YearsMonthsAndDaysAreAddedOneAfterTheOther)
{
    EXPECT_EQ(Moved(Date(2023, 2, 28), 1, 1, 0), "2024-03-31");
    EXPECT_EQ(Moved(Date(2023, 2, 28), 1, 1, 1), "2024-04-01");
    EXPECT_EQ(Moved(Date(2024, 12, 31), 0, 0, 1), "2025-01-01");
    EXPECT_EQ(Moved(Date(2024, 1, 15), 1, -13, 20), "2024-01-04");
    EXPECT_EQ(Moved(Date(2024, 1, 15), 0, 0, 0), "2024-01-15");
    EXPECT_EQ(Moved(Date(1582, 10, 4), 0, 0, 1), "1582-10-05");
}

TEST(CalDateTime, TimeOfDayStays)
{
    EXPECT_EQ(Describe(DateTimeFuncs::GetCalDateTime(COleDateTime(2024, 2, 29, 23, 59, 58), 1, 1, 1)),
              "2025-04-01 23:59:58");
    EXPECT_EQ(Describe(DateTimeFuncs::GetCalDateTime(COleDateTime(1899, 12, 29, 6, 0, 1), 0, 0, -1)),
              "1899-12-28 06:00:01");
}

TEST(CalDateTime, StepOutOfTheCalendarChangesNothingAndIsLogged)
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    const struct
    {
        COleDateTime date;
        int years;
        int months;
        int days;
    } cases[] = {
        {Date(9999, 5, 6), 1, 0, 0},
        {Date(9999, 12, 1), 0, 1, 0},
        {Date(9999, 12, 31), 0, 0, 1},
        {Date(1400, 1, 1), -1, 0, 0},
        {Date(1400, 1, 31), 0, -1, 0},
        {Date(1400, 1, 1), 0, 0, -1},
        // A step out of the range fails, even if the next one would return into it.
        {Date(9999, 5, 6), 1, -12, 0},
        {Date(1399, 12, 31), 0, 0, 1},
        {Date(100, 1, 1), 0, 0, 0},
        // Years that look like 1400 to 9999 in 16 bits.
        {Date(2024, 1, 1), 65'536, 0, 0},
        {Date(2024, 1, 1), -65'536, 0, 0},
        {Date(2024, 1, 1), 0, 786'432, 0},
        {Date(2024, 1, 1), 0, 0, 23'936'532},
        {Date(2024, 1, 1), most, 0, 0},
        {Date(2024, 1, 1), least, 0, 0},
        {Date(2024, 1, 1), 0, most, 0},
        {Date(2024, 1, 1), 0, least, 0},
        {Date(2024, 1, 1), 0, 0, most},
        {Date(2024, 1, 1), 0, 0, least},
    };
    for (const auto& one : cases) {
        const DebugCapture capture;
        const COleDateTime moved = DateTimeFuncs::GetCalDateTime(one.date, one.years, one.months, one.days);
        EXPECT_EQ(moved.m_dt, one.date.m_dt) << Describe(one.date) << ' ' << one.years;
        EXPECT_EQ(moved.GetStatus(), COleDateTime::valid);
        EXPECT_EQ(OnlyMessage(capture), yearText);
    }
}

TEST(CalDateTime, EndsOfTheCalendarAreReached)
{
    const DebugCapture capture;
    EXPECT_EQ(Moved(Date(1400, 1, 1), 8599, 11, 30), "9999-12-31");
    EXPECT_EQ(Moved(Date(9999, 12, 31), -8599, -11, -30), "1400-01-01");
    EXPECT_EQ(Moved(Date(1400, 1, 1), 0, 0, 3'141'084), "9999-12-31");
    EXPECT_EQ(Moved(Date(9999, 12, 31), 0, 0, -3'141'084), "1400-01-01");
    EXPECT_TRUE(capture.Texts().empty());
}

TEST(CalDateTime, InvalidDateTimeIsReturnedWithoutALogLine)
{
    const DebugCapture capture;
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        const COleDateTime moved = DateTimeFuncs::GetCalDateTime(OfStatus(status), 1, 2, 3);
        EXPECT_EQ(moved.GetStatus(), status);
        EXPECT_EQ(moved.m_dt, 45'000.5);
    }
    EXPECT_TRUE(capture.Texts().empty());
}

TEST(CalDateTime, ValidCountOfDaysWithoutADateIsLoggedAsAWrongDay)
{
    for (const double days : {1e9, -1e9, std::nan("")}) {
        const DebugCapture capture;
        const COleDateTime moved = DateTimeFuncs::GetCalDateTime(OfStatus(COleDateTime::valid, days), 0, 0, 1);
        EXPECT_TRUE(moved.m_dt == days || std::isnan(days));
        EXPECT_EQ(moved.GetStatus(), COleDateTime::valid);
        EXPECT_EQ(OnlyMessage(capture), dayText);
    }
}

TEST(CalDateTime, RandomStepsAgreeWithASecondCalendar)
{
    std::mt19937 random(20'240'105);
    const auto pick = [&random](int least, int most) {
        return std::uniform_int_distribution(least, most)(random);
    };
    const DebugCapture capture;
    std::size_t refused = 0;
    for (int round = 0; round < 100'000; ++round) {
        const int month = pick(1, 12);
        const COleDateTime date = Date(pick(1400, 9999), month, pick(20, month == 2 ? 28 : 30));
        const int years = pick(-3, 3) * pick(0, 2000);
        const int months = pick(-3, 3) * pick(0, 20'000);
        const int days = pick(-3, 3) * pick(0, 1'000'000);
        Model model(date.GetYear(), date.GetMonth(), date.GetDay());
        const bool isKept = model.AddMonths(std::int64_t{years} * 12) && model.AddMonths(months) && model.AddDays(days);
        refused += isKept ? 0 : 1;
        ASSERT_EQ(Describe(DateTimeFuncs::GetCalDateTime(date, years, months, days)),
                  Describe(isKept ? model.Value() : date))
            << Describe(date) << ' ' << years << ' ' << months << ' ' << days;
    }
    EXPECT_EQ(capture.Texts().size(), refused);
    EXPECT_GT(refused, 1000U);
    EXPECT_LT(refused, 90'000U);
}

TEST(RelativeDates, AreThoseOfTheCalendar)
{
    const COleDateTime leapDay(2024, 2, 29, 13, 5, 9);
    EXPECT_EQ(Describe(DateTimeFuncs::GetYesterdayDateTime(leapDay)), "2024-02-28 13:05:09");
    EXPECT_EQ(Describe(DateTimeFuncs::GetYesterdayDateTime(COleDateTime(2024, 3, 1, 0, 0, 0))), "2024-02-29 00:00:00");
    EXPECT_EQ(Describe(DateTimeFuncs::GetLastMonthDateTime(leapDay)), "2024-01-31 13:05:09");
    EXPECT_EQ(Describe(DateTimeFuncs::GetLastYearDateTime(leapDay)), "2023-02-28 13:05:09");
}

TEST(RelativeDates, WeeksBeginOnSunday)
{
    // 7 January 2024 was a Sunday.
    for (int day = 7; day <= 13; ++day) {
        const COleDateTime date(2024, 1, day, 1, 2, 3);
        EXPECT_EQ(Describe(DateTimeFuncs::GetBeginThisWeekDateTime(date)), "2024-01-07 01:02:03") << day;
        EXPECT_EQ(Describe(DateTimeFuncs::GetBeginLastWeekDateTime(date)), "2023-12-31 01:02:03") << day;
    }
    EXPECT_EQ(Describe(DateTimeFuncs::GetEndWeekDateTime(COleDateTime(2024, 1, 7, 1, 2, 3))), "2024-01-13 01:02:03");
    EXPECT_EQ(Describe(DateTimeFuncs::GetEndWeekDateTime(COleDateTime(2024, 1, 10, 1, 2, 3))), "2024-01-16 01:02:03");
}

TEST(RelativeDates, OfAnInvalidDateTimeAreItself)
{
    const DebugCapture capture;
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        const COleDateTime none = OfStatus(status);
        for (const auto move : {DateTimeFuncs::GetYesterdayDateTime, DateTimeFuncs::GetLastMonthDateTime,
                                DateTimeFuncs::GetLastYearDateTime, DateTimeFuncs::GetBeginThisWeekDateTime,
                                DateTimeFuncs::GetBeginLastWeekDateTime, DateTimeFuncs::GetEndWeekDateTime}) {
            EXPECT_EQ(move(none).GetStatus(), status);
            EXPECT_EQ(move(none).m_dt, none.m_dt);
        }
    }
    EXPECT_TRUE(capture.Texts().empty());
}

TEST(RelativeDates, BeyondTheCalendarAreTheDateItself)
{
    const DebugCapture capture;
    EXPECT_EQ(Describe(DateTimeFuncs::GetYesterdayDateTime(Date(1400, 1, 1))).substr(0, 10), "1400-01-01");
    EXPECT_EQ(OnlyMessage(capture), yearText);
}

TEST(MatchingDates, AgreeInYearMonthAndDay)
{
    const COleDateTime date(2024, 1, 5, 10, 30, 0);
    const struct
    {
        COleDateTime other;
        int month;
        int day;
    } cases[] = {
        {COleDateTime(2024, 1, 5, 23, 59, 59), 1, 1}, {COleDateTime(2024, 1, 6, 10, 30, 0), 1, 0},
        {COleDateTime(2024, 2, 5, 10, 30, 0), 0, 0},  {COleDateTime(2023, 1, 5, 10, 30, 0), 0, 0},
        {OfStatus(COleDateTime::invalid), 0, 0},      {OfStatus(COleDateTime::null), 0, 0},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(DateTimeFuncs::IsMatchDateMonth(date, one.other), one.month) << Describe(one.other);
        EXPECT_EQ(DateTimeFuncs::IsMatchDate(date, one.other), one.day) << Describe(one.other);
        EXPECT_EQ(DateTimeFuncs::IsMatchDateMonth(one.other, date), one.month) << Describe(one.other);
        EXPECT_EQ(DateTimeFuncs::IsMatchDate(one.other, date), one.day) << Describe(one.other);
    }
}

TEST(MatchingDates, InvalidOnesMatchEachOtherAndNullOnesNothing)
{
    const COleDateTime invalid = OfStatus(COleDateTime::invalid);
    const COleDateTime null = OfStatus(COleDateTime::null);
    EXPECT_EQ(DateTimeFuncs::IsMatchDate(invalid, invalid), 1);
    EXPECT_EQ(DateTimeFuncs::IsMatchDateMonth(invalid, invalid), 1);
    EXPECT_EQ(DateTimeFuncs::IsMatchDate(null, null), 0);
    EXPECT_EQ(DateTimeFuncs::IsMatchDateMonth(null, invalid), 0);
}
