// Date-times as people type them.
#include <VyrHost/text/TypedDateTime.h>

#include <tests/support/Describe.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

#include <string>

using VyrHost::Text::ReadTypedDateTime;
using VyrTests::Describe;
using VyrTests::UserLocale;

namespace {

/// The value, followed by d for a date and t for a time of day; "none" for other texts.
std::string Read(std::u16string_view text)
{
    const auto typed = ReadTypedDateTime(text);
    if (!typed)
        return "none";
    return Describe(typed->value) + (typed->hasDate ? " d" : " ") + (typed->hasTime ? "t" : "");
}

} // namespace

TEST(TypedDateTime, DateAndTimeOfDayAreReadWithABlankOrATBetweenThem)
{
    const UserLocale locale(u"en_US");
    EXPECT_EQ(Read(u"2024-01-05 10:30:15"), "2024-01-05 10:30:15 dt");
    EXPECT_EQ(Read(u"2024-01-05T10:30:15"), "2024-01-05 10:30:15 dt");
    EXPECT_EQ(Read(u"2024/01/05 10:30"), "2024-01-05 10:30:00 dt");
    EXPECT_EQ(Read(u"2024-01-05 00:00"), "2024-01-05 00:00:00 dt") << "midnight is a time of day";
    EXPECT_EQ(Read(u"1/5/2024 3:04 PM"), "none") << "the locale's time has seconds";
    EXPECT_EQ(Read(u"1/5/2024 3:04:05 PM"), "2024-01-05 15:04:05 dt");
}

TEST(TypedDateTime, DateAloneHasNoTimeOfDay)
{
    EXPECT_EQ(Read(u"2024-01-05"), "2024-01-05 00:00:00 d");
    EXPECT_EQ(Read(u" 2024/02/29 "), "2024-02-29 00:00:00 d");
    const UserLocale locale(u"de_DE");
    EXPECT_EQ(Read(u"5.1.2024"), "2024-01-05 00:00:00 d");
}

TEST(TypedDateTime, TimeOfDayAloneHasNoDate)
{
    for (const auto& [text, time] :
         {std::pair(u"10:30", "10:30:00"), {u"10:30:59", "10:30:59"}, {u"00:00", "00:00:00"}})
        EXPECT_EQ(Read(text), std::string("2000-01-01 ") + time + " t");
}

TEST(TypedDateTime, OtherTextsAreRefused)
{
    for (const char16_t* const text : {u"", u" ", u"today", u"2024-02-30", u"2024-13-01", u"24:00", u"10:60", u"2024",
                                       u"2024-01-05T", u"2024-01-05 25:00", u"T10:30", u"10", u"2024-01-05 10:30 x"})
        EXPECT_EQ(Read(text), "none") << VyrPlatform::Encoding::ToUtf8(text);
}
