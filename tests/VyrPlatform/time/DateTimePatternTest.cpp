// Texts are read by patterns digit for digit.
#include <VyrPlatform/time/DateTimePattern.h>

#include <gtest/gtest.h>

using VyrPlatform::DateTimePattern::Read;

namespace {

constexpr std::u16string_view twelveHours = u"%Y%m%d %I%M%S";

} // namespace

TEST(DateTimePattern, NumbersWithoutSeparatorsHaveTwoDigits)
{
    EXPECT_EQ(Read(u"20240105 103059", twelveHours), COleDateTime(2024, 1, 5, 10, 30, 59));
    EXPECT_EQ(Read(u"20240105 103059", u"%Y%m%d %H%M%S"), COleDateTime(2024, 1, 5, 10, 30, 59));
}

TEST(DateTimePattern, HourOfTwelveIsFrom1To12)
{
    EXPECT_EQ(Read(u"20240105 120000", twelveHours).GetStatus(), COleDateTime::valid);
    EXPECT_EQ(Read(u"20240105 010000", twelveHours), COleDateTime(2024, 1, 5, 1, 0, 0));
    EXPECT_EQ(Read(u"20240105 000000", twelveHours).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(Read(u"20240105 130000", twelveHours).GetStatus(), COleDateTime::invalid);
}

TEST(DateTimePattern, TwoPercentSignsAreOne)
{
    EXPECT_EQ(Read(u"2024%01%05", u"%Y%%%m%%%d"), COleDateTime(2024, 1, 5, 0, 0, 0));
    EXPECT_EQ(Read(u"20240105", u"%Y%%%m%%%d").GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(Read(u"2024q01q05", u"%Y%q%m%q%d").GetStatus(), COleDateTime::invalid) << "no such conversion";
}
