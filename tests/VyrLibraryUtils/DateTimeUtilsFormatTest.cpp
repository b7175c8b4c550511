// Formats of users, their patterns, and the formats of locales.
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/Clock.h>

#include <tests/support/Describe.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

#include <ctime>
#include <random>
#include <string>

using VyrLibraryUtils::DateTimeUtils;
using VyrTests::UserLocale;

namespace {

/// A Friday.
const COleDateTime sample(2024, 3, 15, 13, 5, 9);

CString Written(const COleDateTime& dateTime, const CString& format)
{
    return DateTimeUtils::GetOleDateTimeFormat(dateTime, DateTimeUtils::GetDateTimeFormat(format, u""));
}

COleDateTime WithStatus(COleDateTime::DateTimeStatus status)
{
    COleDateTime dateTime = sample;
    dateTime.SetStatus(status);
    return dateTime;
}

TEST(DateTimeFormat, TakesTheLongestListedRun)
{
    const UserLocale locale(u"C");
    EXPECT_EQ(Written(sample, u"y yy yyy yyyy yyyyy yyyyyy"), u"y 24 24y 2024 2024y 202424");
    EXPECT_EQ(Written(sample, u"M MM MMM MMMM MMMMM"), u"3 03 Mar March March3");
    EXPECT_EQ(Written(sample, u"d dd ddd"), u"15 15 1515");
    EXPECT_EQ(Written(sample, u"E EE EEE EEEE EEEEE"), u"E EE Fri Friday FridayE");
    EXPECT_EQ(Written(sample, u"H HH h hh m mm s ss a aa"), u"13 13 1 01 5 05 9 09 PM PMPM");
}

TEST(DateTimeFormat, KeepsOtherLettersAndSigns)
{
    EXPECT_EQ(Written(sample, u"IXx_-.,;()[]{}#~+ \u00E4\u65E5\U0001F600\xDC80\\/"),
              u"IXx_-.,;()[]{}#~+ \u00E4\u65E5\U0001F600\xDC80\\/");
    EXPECT_EQ(Written(sample, u"GDYSwWkKzZ"), u"GDYSwWkKzZ");
    EXPECT_EQ(Written(sample, u""), u"");
}

TEST(DateTimeFormat, TakesTextInApostrophesLiterally)
{
    EXPECT_EQ(Written(sample, u"'dd'dd"), u"dd15");
    EXPECT_EQ(Written(sample, u"''"), u"'");
    EXPECT_EQ(Written(sample, u"''''"), u"''");
    EXPECT_EQ(Written(sample, u"'a''b'"), u"a'b");
    EXPECT_EQ(Written(sample, u"'''d'''"), u"'d'");
    EXPECT_EQ(Written(sample, u"'d%<M>'d"), u"d%<M>15");
    EXPECT_EQ(Written(sample, u"d 'd d"), u"15 d d");
    EXPECT_EQ(Written(sample, u"d'"), u"15");
    EXPECT_EQ(Written(sample, u"'d''"), u"d'");
}

TEST(DateTimeFormat, KeepsAllTokens)
{
    EXPECT_EQ(Written(sample, u"yyyy<Folder>MM"), u"2024<Folder>03");
    EXPECT_EQ(Written(sample, u"<Make>d<Model>d<anything 'dd' %d>"), u"<Make>15<Model>15<anything 'dd' %d>");
    EXPECT_EQ(Written(sample, u"<>d"), u"<>15");
    EXPECT_EQ(Written(sample, u"<d<d>d"), u"<d<d>15");
    EXPECT_EQ(DateTimeUtils::GetDateTimeFormat(u"d<Folder>d", u""), u"%-d<Folder>%-d");
}

TEST(DateTimeFormat, KeepsAnAngleBracketWithoutItsPartner)
{
    EXPECT_EQ(Written(sample, u"d < d"), u"15 < 15");
    EXPECT_EQ(Written(sample, u"d > d"), u"15 > 15");
    EXPECT_EQ(Written(sample, u"> d <"), u"> 15 <");
    EXPECT_EQ(Written(sample, u"<d> <d"), u"<d> <15");
}

TEST(DateTimeFormat, EscapesPercentSigns)
{
    EXPECT_EQ(Written(sample, u"%"), u"%");
    EXPECT_EQ(Written(sample, u"%%"), u"%%");
    EXPECT_EQ(Written(sample, u"%Y%-P"), u"%Y%-P");
    EXPECT_EQ(Written(sample, u"%d"), u"%15");
    EXPECT_EQ(Written(sample, u"'%d'<%d>%"), u"%d<%d>%");
}

TEST(DateTimeFormat, ReadsNoSecondText)
{
    for (const char16_t* const second : {u"", u"yyyy", u"%d", u"'"})
        EXPECT_EQ(DateTimeUtils::GetDateTimeFormat(u"yyyyMMdd_HHmmss", second), u"%Y%m%d_%H%M%S");
}

TEST(DateTimeFormat, CountsTwelveHoursFromOneToTwelve)
{
    const UserLocale locale(u"C");
    for (int hour = 0; hour < 24; ++hour) {
        const COleDateTime moment(2024, 3, 5, hour, 0, 0);
        const int shown = hour % 12 == 0 ? 12 : hour % 12;
        const std::string expected = std::to_string(shown) + (hour < 12 ? " AM" : " PM");
        EXPECT_EQ(VyrPlatform::Encoding::ToUtf8(Written(moment, u"h a")), expected);
    }
}

TEST(DateTimeFormat, AgreesWithTheCLibraryOnEveryDay)
{
    const UserLocale locale(u"C");
    std::mt19937 random(5);
    const CString format = u"yyyy MMMM MMM MM dd EEEE EEE HH hh mm ss a";
    for (int i = 0; i < 20'000; ++i) {
        const COleDateTime moment(static_cast<double>(static_cast<int>(random() % 2'900'000) - 300'000) +
                                  static_cast<double>(random() % 86400) / 86400);
        std::tm fields{};
        fields.tm_year = moment.GetYear() - 1900;
        fields.tm_mon = moment.GetMonth() - 1;
        fields.tm_mday = moment.GetDay();
        fields.tm_wday = moment.GetDayOfWeek() - 1;
        fields.tm_hour = moment.GetHour();
        fields.tm_min = moment.GetMinute();
        fields.tm_sec = moment.GetSecond();
        char expected[200];
        ASSERT_NE(std::strftime(expected, sizeof expected, "%Y %B %b %m %d %A %a %H %I %M %S %p", &fields), 0U);
        ASSERT_EQ(VyrPlatform::Encoding::ToUtf8(Written(moment, format)), expected);
        ASSERT_EQ(Written(moment, u"yy"), Written(moment, u"yyyy").Right(2));
    }
}

TEST(DateTimeFormat, WritesFourDigitsOfEarlyYears)
{
    EXPECT_EQ(Written({100, 2, 3, 4, 5, 6}, u"yyyy yy M d H"), u"0100 00 2 3 4");
    EXPECT_EQ(Written({907, 2, 3, 4, 5, 6}, u"yyyy yy"), u"0907 07");
}

TEST(DateTimeFormat, NamesAreInTheUsersLanguage)
{
    struct
    {
        const char16_t* locale;
        const char16_t* text;
    } const cases[] = {
        {u"C", u"Friday March"},
        {u"de_DE", u"Freitag M\u00E4rz"},
        {u"tr_TR", u"Cuma Mart"},
        {u"ja_JP", u"\u91D1\u66DC\u65E5 3\u6708"},
    };
    for (const auto& expected : cases) {
        const UserLocale locale(expected.locale);
        EXPECT_EQ(Written(sample, u"EEEE MMMM"), expected.text);
    }
}

TEST(DateTimeFormat, IsTheSameInEveryLocaleWithoutNames)
{
    for (const char16_t* const name : {u"C", u"de_DE", u"tr_TR", u"az", u"ja_JP", u"ar_EG", u"fa_IR", u"th_TH"}) {
        const UserLocale locale(name);
        EXPECT_EQ(Written(sample, u"yyyyMMdd_HHmmss"), u"20240315_130509");
    }
}

TEST(DateTimeFormat, TakesTimeInProportionToHostileFormats)
{
    // Quadratic work on a million units would take minutes.
    const int length = 1'000'000;
    for (const char16_t unit : {u'<', u'>', u'\'', u'%', u'y', u'E', u'M'})
        EXPECT_GE(Written(sample, CString(unit, length)).GetLength(), length / 4) << static_cast<int>(unit);
}

TEST(DateTimePattern, IsLiteralWhereItIsNoConversion)
{
    for (const char16_t* const pattern :
         {u"%", u"%-", u"%q", u"%-Y", u"%-B", u"%-%", u"%-q", u"abc", u"%\xDC80", u"%<Folder>"})
        EXPECT_EQ(DateTimeUtils::GetOleDateTimeFormat(sample, pattern), pattern);
    EXPECT_EQ(DateTimeUtils::GetOleDateTimeFormat(sample, u"%%"), u"%");
    EXPECT_EQ(DateTimeUtils::GetOleDateTimeFormat(sample, u"%%Y%Y%"), u"%Y2024%");
}

TEST(DateTimePattern, GivesAnEmptyTextForAnInvalidDateTime)
{
    for (const auto status : {COleDateTime::invalid, COleDateTime::null}) {
        EXPECT_EQ(Written(WithStatus(status), u"yyyy"), u"");
        EXPECT_EQ(DateTimeUtils::GetOleDateTimeFormat(WithStatus(status), u"text"), u"");
        EXPECT_EQ(DateTimeUtils::GetFormatedDate(WithStatus(status)), u"");
        EXPECT_EQ(DateTimeUtils::GetFormatedDateTime(WithStatus(status)), u"");
    }
}

TEST(DateTimePattern, WritesTextsThatOutgrowTheStack)
{
    CString pattern;
    CString expected;
    for (int i = 0; i < 5'000; ++i) {
        pattern += u"%Y-";
        expected += u"2024-";
    }
    EXPECT_EQ(DateTimeUtils::GetOleDateTimeFormat(sample, pattern), expected);
}

TEST(DateTimeDisplay, FollowsTheShortFormsOfTheLocale)
{
    // All parts of the date have two digits: the systems differ in which languages write a leading zero.
    const COleDateTime moment(2024, 11, 15, 13, 5, 9);
    struct
    {
        const char16_t* locale;
        const char16_t* date;
        const char16_t* time;
    } const cases[] = {
        {u"C", u"11/15/2024", u"1:05:09 PM"},   {u"de_DE", u"15.11.2024", u"13:05:09"},
        {u"tr_TR", u"15.11.2024", u"13:05:09"}, {u"az", u"15.11.2024", u"13:05:09"},
        {u"ja_JP", u"2024/11/15", u"13:05:09"},
    };
    for (const auto& expected : cases) {
        const UserLocale locale(expected.locale);
        EXPECT_EQ(DateTimeUtils::GetFormatedDate(moment), CString(expected.date));
        EXPECT_EQ(DateTimeUtils::GetFormatedDateTime(moment), CString::Join({expected.date, u" ", expected.time}));
    }
}

TEST(DateTimeNow, IsWrittenInTheFormThatIsReadBack)
{
    VyrPlatform::Clock::SetNow(COleDateTime(2024, 3, 5, 7, 8, 9));
    for (const char16_t* const name : {u"C", u"de_DE", u"tr_TR", u"az", u"ja_JP"}) {
        const UserLocale locale(name);
        EXPECT_EQ(DateTimeUtils::GetCurrentDateTime(), u"2024/03/05 07:08:09");
        EXPECT_EQ(DateTimeUtils::GetCurrentDateTimeEx(), u"2024/03/05 07:08:09");
        EXPECT_EQ(VyrTests::Describe(DateTimeUtils::GetParseDateTime(DateTimeUtils::GetCurrentDateTime(), 1, 0, 1024)),
                  "2024-03-05 07:08:09");
    }
    VyrPlatform::Clock::SetNow({});
}

} // namespace
