// Both systems read the formats that the libraries themselves write.
#include <VyrPlatform/time/AutomationDate.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <tests/support/Describe.h>

#include <gtest/gtest.h>

#include <random>

namespace AutomationDate = VyrPlatform::AutomationDate;
using VyrTests::Describe;

namespace {

std::string Parsed(const CString& text)
{
    const std::optional<COleDateTime> read = AutomationDate::Parse(text);
    return read ? Describe(*read) : "none";
}

TEST(AutomationDate, ReadsTheFormsOfTheCompanionAndOfTheCalendar)
{
    EXPECT_EQ(Parsed(u"2024/01/05 10:30:00"), "2024-01-05 10:30:00");
    EXPECT_EQ(Parsed(u"2024-01-05 10:30:00"), "2024-01-05 10:30:00");
    EXPECT_EQ(Parsed(u"2024/01/05"), "2024-01-05 00:00:00");
    EXPECT_EQ(Parsed(u"1899/12/29 23:59:59"), "1899-12-29 23:59:59");
    EXPECT_EQ(Parsed(u"1601/01/01 00:00:00"), "1601-01-01 00:00:00");
    EXPECT_EQ(Parsed(u"9999/12/31 23:59:59"), "9999-12-31 23:59:59");
    const char16_t* const months[] = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                      u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
    for (int month = 1; month <= 12; ++month) {
        CString text;
        text.Format(u"2024-%s-07 23:09:05", CString(months[month - 1]));
        EXPECT_EQ(Parsed(text), Describe(COleDateTime(2024, month, 7, 23, 9, 5)));
    }
}

TEST(AutomationDate, ReadsTheShortDateOfTheUser)
{
    const COleDateTime date(2024, 11, 25, 13, 5, 9);
    const CString text = VyrPlatform::DateTimePattern::Write(date, VyrPlatform::DateTimePattern::ShortDate());
    EXPECT_EQ(Parsed(text), "2024-11-25 00:00:00");
}

TEST(AutomationDate, GivesNothingForOtherTexts)
{
    for (const char16_t* const text : {u"", u" ", u"abc", u"2024-01-05T10:30:00", u"2024/02/30 10:30:00",
                                       u"2024/13/13 00:00:00", u"2024/01/05 24:00:00", u"2024/01/05 10:60:00"})
        EXPECT_EQ(Parsed(text), "none") << VyrPlatform::Encoding::ToUtf8(CString(text));
}

TEST(AutomationDate, ReadsBackEverySecondThatTheCompanionWrites)
{
    std::mt19937 random(3);
    const auto pick = [&random](int least, int most) {
        return std::uniform_int_distribution(least, most)(random);
    };
    for (int round = 0; round < 2000; ++round) {
        const COleDateTime date(pick(1601, 9999), pick(1, 12), pick(1, 28), pick(0, 23), pick(0, 59), pick(0, 59));
        const CString text = VyrPlatform::DateTimePattern::Write(date, VyrPlatform::DateTimePattern::stored);
        ASSERT_EQ(Parsed(text), Describe(date));
    }
}

TEST(AutomationDate, LongTextsTakeNoTime)
{
    EXPECT_EQ(Parsed(CString(u'9', 1'000'000)), "none");
    EXPECT_EQ(Parsed(CString(u' ', 1'000'000)), "none");
}

} // namespace
