// Date-times read from text.
#include <VyrLibraryUtils/DateTimeUtils.h>

#include <tests/support/Describe.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

using VyrLibraryUtils::DateTimeUtils;
using VyrTests::Describe;
using VyrTests::UserLocale;

namespace {

constexpr const char16_t* tableLocales[] = {u"C", u"de_DE", u"tr_TR", u"az", u"ja_JP"};

std::string Parsed(const CString& text)
{
    return Describe(DateTimeUtils::GetParseDateTime(text, 1, 0, 1024));
}

TEST(ParseDateTime, ReadsTheFixedFormsInEveryLocale)
{
    struct
    {
        const char16_t* text;
        const char* dateTime;
    } const cases[] = {
        {u"2024/03/05 07:08:09", "2024-03-05 07:08:09"},
        {u"2024-03-05 07:08:09", "2024-03-05 07:08:09"},
        {u"2024-03-05", "2024-03-05 00:00:00"},
        {u"2024/03/05", "2024-03-05 00:00:00"},
        {u"2024-03-05 07:08", "2024-03-05 07:08:00"},
        {u"2024/03/05 23:59", "2024-03-05 23:59:00"},
        {u"2024-Jan-05 10:30:00", "2024-01-05 10:30:00"},
        {u"2024-Feb-29", "2024-02-29 00:00:00"},
        {u"2024-Mar-05", "2024-03-05 00:00:00"},
        {u"2024-Apr-05", "2024-04-05 00:00:00"},
        {u"2024-May-05", "2024-05-05 00:00:00"},
        {u"2024-Jun-05", "2024-06-05 00:00:00"},
        {u"2024-Jul-05", "2024-07-05 00:00:00"},
        {u"2024-Aug-05", "2024-08-05 00:00:00"},
        {u"2024-Sep-05", "2024-09-05 00:00:00"},
        {u"2024-Oct-05", "2024-10-05 00:00:00"},
        {u"2024-Nov-05", "2024-11-05 00:00:00"},
        {u"2024-Dec-05", "2024-12-05 00:00:00"},
        {u"2024-dec-05", "2024-12-05 00:00:00"},
        {u"2024-03-05   07:08:09", "2024-03-05 07:08:09"},
        {u" \t2024-03-05 07:08:09 ", "2024-03-05 07:08:09"},
        {u"1582-10-10 00:00:00", "1582-10-10 00:00:00"},
        {u"0100/01/01 00:00:00", "0100-01-01 00:00:00"},
        {u"9999/12/31 23:59:59", "9999-12-31 23:59:59"},
    };
    for (const char16_t* const name : tableLocales) {
        const UserLocale locale(name);
        for (const auto& expected : cases)
            EXPECT_EQ(Parsed(expected.text), expected.dateTime)
                << testing::PrintToString(CString::Join({name, u": ", expected.text}));
    }
}

TEST(ParseDateTime, RefusesEverythingElseInEveryLocale)
{
    const CString texts[] = {
        u"",
        u" ",
        u"T",
        u"2024",
        u"2024-03",
        u"2024-03-05T07:08:09",
        u"2024-03-05Z",
        u"2024-03-05 07",
        u"2024-03-05 07:",
        u"2024-03-05 07:08:",
        u"2024-03-05 07:08:09x",
        u"2024-03-05 07:08:09.5",
        u"2024-03-05 24:00:00",
        u"2024-03-05 07:60:00",
        u"2024-03-05 07:08:60",
        u"2024-02-30",
        u"2023-02-29",
        u"2024-13-01",
        u"2024-00-01",
        u"2024-01-00",
        u"2024-Foo-05",
        u"2024--05",
        u"0099-01-01",
        u"0000-01-01",
        u"-2024-01-01",
        u"07:08:09",
        u"13:05",
        u"2024-03-0507:08:09",
        u"2024/03-05",
        u"x2024-03-05",
        u"2024-03-05 07:08:09 2024",
        u"tomorrow",
        u"45366.5",
        u"20240305",
        u"\u0662\u0660\u0662\u0664-03-05",
        std::u16string_view(u"2024-03-05\0", 11),
        u"\xD800",
        CString(u'9', 1'000'000),
        CString(u' ', 1'000'000),
    };
    for (const char16_t* const name : tableLocales) {
        const UserLocale locale(name);
        for (const CString& text : texts)
            EXPECT_EQ(Parsed(text), "invalid") << testing::PrintToString(text.Left(40));
    }
}

TEST(ParseDateTime, ReadsNeitherModeNorFlagsNorLocale)
{
    for (const std::uint32_t number : {0U, 1U, 2U, 1024U, 0xFFFFFFFFU})
        EXPECT_EQ(
            Describe(DateTimeUtils::GetParseDateTime(u"2024-03-05 07:08:09", static_cast<int>(number), number, number)),
            "2024-03-05 07:08:09");
}

TEST(ParseDateTime, ReadsTheShortFormsOfTheLocale)
{
    struct
    {
        const char16_t* locale;
        const char16_t* text;
        const char* dateTime;
    } const cases[] = {
        {u"C", u"3/5/2024", "2024-03-05 00:00:00"},
        {u"C", u"03/05/2024 1:02:03 PM", "2024-03-05 13:02:03"},
        {u"C", u"3/5/2024 12:00:00 am", "2024-03-05 00:00:00"},
        {u"C", u"3/5/2024 12:30:00 PM", "2024-03-05 12:30:00"},
        {u"C", u"3/5/2024 13:14", "2024-03-05 13:14:00"},
        {u"C", u"3/5/29", "2029-03-05 00:00:00"},
        {u"C", u"3/5/30", "1930-03-05 00:00:00"},
        {u"C", u"13/5/2024", "invalid"},
        {u"C", u"3/5/2024 13:02:03 PM", "invalid"},
        {u"C", u"3/5/2024 0:02:03 AM", "invalid"},
        {u"C", u"3/5/202", "invalid"},
        {u"C", u"5.3.2024", "invalid"},
        {u"de_DE", u"5.3.2024", "2024-03-05 00:00:00"},
        {u"de_DE", u"05.03.2024 7:08:09", "2024-03-05 07:08:09"},
        {u"de_DE", u"05.03.24 07:08", "2024-03-05 07:08:00"},
        {u"de_DE", u"3/5/2024", "invalid"},
        {u"tr_TR", u"5.3.2024 07:08:09", "2024-03-05 07:08:09"},
        {u"az", u"05.03.2024 07:08:09", "2024-03-05 07:08:09"},
        {u"ja_JP", u"2024/3/5 7:08:09", "2024-03-05 07:08:09"},
    };
    for (const auto& expected : cases) {
        const UserLocale locale(expected.locale);
        EXPECT_EQ(Parsed(expected.text), expected.dateTime)
            << testing::PrintToString(CString::Join({expected.locale, u": ", expected.text}));
    }
}

TEST(ParseDateTime, ReadsMonthsInTheUsersLanguage)
{
    const UserLocale locale(u"de_DE");
    EXPECT_EQ(Parsed(u"2024-Dezember-05"), "2024-12-05 00:00:00");
    EXPECT_EQ(Parsed(u"2024-M\u00E4rz-05"), "2024-03-05 00:00:00");
    EXPECT_EQ(Parsed(u"2024-Dec-05"), "2024-12-05 00:00:00");
}

TEST(ParseDateTime, ReadsBackTheDisplayFormsInEveryLocale)
{
    const char16_t* const names[] = {
        u"C",     u"de_DE", u"tr_TR", u"az",    u"ja_JP", u"en_US", u"en_GB", u"en_CA", u"fr_FR", u"fr_CA", u"es_ES",
        u"es_MX", u"pt_BR", u"it_IT", u"nl_NL", u"sv_SE", u"da_DK", u"nb_NO", u"fi_FI", u"pl_PL", u"cs_CZ", u"sk_SK",
        u"hu_HU", u"ro_RO", u"bg_BG", u"ru_RU", u"uk_UA", u"el_GR", u"he_IL", u"ar_EG", u"fa_IR", u"hi_IN", u"th_TH",
        u"vi_VN", u"ko_KR", u"zh_CN", u"zh_TW", u"lv_LV", u"lt_LT", u"et_EE", u"hr_HR", u"sl_SI", u"kk_KZ", u"id_ID"};
    for (const char16_t* const name : names) {
        const UserLocale locale(name);
        for (const COleDateTime moment : {COleDateTime(2024, 3, 5, 0, 8, 9), COleDateTime(1999, 12, 31, 23, 59, 59),
                                          COleDateTime(1850, 1, 2, 12, 0, 0), COleDateTime(2031, 10, 20, 13, 5, 0)}) {
            const CString date = DateTimeUtils::GetFormatedDate(moment);
            const CString dateTime = DateTimeUtils::GetFormatedDateTime(moment);
            EXPECT_EQ(Parsed(dateTime), Describe(moment))
                << testing::PrintToString(CString::Join({name, u": ", dateTime}));
            EXPECT_EQ(Parsed(date), Describe(DateTimeUtils::GetBeginDateTime(moment)))
                << testing::PrintToString(CString::Join({name, u": ", date}));
        }
    }
}

TEST(ParseDateTime, EndsOnHostileTexts)
{
    static constexpr std::u16string_view pieces[] = {u"2024", u"-",      u"/",      u" ",           u":",
                                                     u"05",   u"7",      u"Jan",    u"PM",          u".",
                                                     u"T",    u"\u00A0", u"\xD800", u"99999999999", u"%Y"};
    std::mt19937 random(6);
    int read = 0;
    for (int i = 0; i < 50'000; ++i) {
        CString text;
        for (auto count = random() % 12; count > 0; --count)
            text += pieces[random() % std::size(pieces)];
        const COleDateTime parsed = DateTimeUtils::GetParseDateTime(text, 1, 0, 1024);
        ASSERT_TRUE(parsed.GetStatus() == COleDateTime::valid || parsed.GetStatus() == COleDateTime::invalid);
        read += parsed.GetStatus() == COleDateTime::valid;
    }
    EXPECT_LT(read, 5'000);
}

TEST(ExifDateTime, ReadsItsOneForm)
{
    EXPECT_EQ(Describe(DateTimeUtils::GetExifDateTime(u"2024:03:05 07:08:09")), "2024-03-05 07:08:09");
    EXPECT_EQ(Describe(DateTimeUtils::GetExifDateTime(u"2024:02:29 23:59:59")), "2024-02-29 23:59:59");
    EXPECT_EQ(Describe(DateTimeUtils::GetExifDateTime(u"1985:12:31 00:00:00")), "1985-12-31 00:00:00");
}

TEST(ExifDateTime, RefusesBlanksZerosImpossibleDatesAndOtherForms)
{
    for (const char16_t* const text : {u"",
                                       u"    :  :     :  :  ",
                                       u"                   ",
                                       u"0000:00:00 00:00:00",
                                       u"2024:00:05 07:08:09",
                                       u"2024:03:00 07:08:09",
                                       u"2023:02:29 07:08:09",
                                       u"2024:13:05 07:08:09",
                                       u"2024:03:05 24:00:00",
                                       u"2024:03:05 07:60:00",
                                       u"2024:03:05 07:08:60",
                                       u"2024:03:05",
                                       u"2024:03:05 07:08",
                                       u"2024-03-05 07:08:09",
                                       u"2024:3:5 7:8:9",
                                       u"2024:03:05T07:08:09",
                                       u" 2024:03:05 07:08:09",
                                       u"2024:03:05 07:08:09 ",
                                       u"2024:03:05 07:08:09.5",
                                       u"2024:03:05  07:08:09",
                                       u"2024:03:05\t07:08:09",
                                       u"+024:03:05 07:08:09",
                                       u"2024: 3: 5  7: 8: 9",
                                       u"\uFF12024:03:05 07:08:09",
                                       u"0099:03:05 07:08:09"})
        EXPECT_EQ(Describe(DateTimeUtils::GetExifDateTime(text)), "invalid") << testing::PrintToString(CString(text));
}

TEST(InstallDateTime, ReadsEightDigits)
{
    EXPECT_EQ(Describe(DateTimeUtils::GetInstallDateTime(u"20240305")), "2024-03-05 00:00:00");
    EXPECT_EQ(Describe(DateTimeUtils::GetInstallDateTime(u"19991231")), "1999-12-31 00:00:00");
}

TEST(InstallDateTime, RefusesOtherTextsAndImpossibleDates)
{
    for (const char16_t* const text :
         {u"", u"2024030", u"202403055", u"2024-3-5", u"20240230", u"20230229", u"20241301", u"20240001", u"20240100",
          u"00000000", u" 20240305", u"20240305 ", u"2024030a", u"+2024030", u"3/5/2024"})
        EXPECT_EQ(Describe(DateTimeUtils::GetInstallDateTime(text)), "invalid")
            << testing::PrintToString(CString(text));
}

} // namespace
