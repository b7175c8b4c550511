// Dates in names, in the forms of cameras and programs.
#include <VyrHost/metadata/Dates.h>

#include <tests/support/Describe.h>

#include <gtest/gtest.h>

#include <string>

using VyrHost::Metadata::FindNameDate;
using VyrHost::Metadata::NameDateProblem;

namespace {

/// The date, with its time of day where the name has one; "none", "no such day" or "no such time".
std::string DateIn(std::u16string_view name)
{
    NameDateProblem problem = NameDateProblem::None;
    const auto found = FindNameDate(name, problem);
    if (!found && problem == NameDateProblem::NoSuchTime)
        return "no such time";
    if (!found)
        return problem == NameDateProblem::NoSuchDay ? "no such day" : "none";
    EXPECT_EQ(problem, NameDateProblem::None);
    const std::string text = VyrTests::Describe(found->value);
    return found->hasTime ? text : text.substr(0, 10);
}

} // namespace

TEST(NameDate, FormsOfCamerasAndProgramsAreRead)
{
    const std::pair<const char16_t*, const char*> names[] = {
        {u"IMG_20240105_103000.jpg", "2024-01-05 10:30:00"},
        {u"2024-01-05 10.30.00.jpg", "2024-01-05 10:30:00"},
        {u"IMG-20240105-WA0001.jpg", "2024-01-05"},
        {u"PXL_20240105_103000123.jpg", "2024-01-05 10:30:00"},
        {u"Screenshot_2024-01-05-10-30-59.png", "2024-01-05 10:30:59"},
        {u"20240105103000.mp4", "2024-01-05 10:30:00"},
        {u"2024.01.05", "2024-01-05"},
        {u"report 2024_01_05T10:30.txt", "2024-01-05 10:30:00"},
        {u"1999-12-31_23-59-59", "1999-12-31 23:59:59"},
        {u"x20000229y", "2000-02-29"},
        {u"Screenshot 2024-01-05 at 10.30.00.png", "2024-01-05 10:30:00"},
        {u"WhatsApp Image 2024-01-05 at 10.30.00 (1).jpeg", "2024-01-05 10:30:00"},
        {u"2024-01-05 at 10.30.png", "2024-01-05 10:30:00"},
        {u"2024-01-05 at home.png", "2024-01-05"},
        {u"Screenshot 2024-01-05 at 9.05.00.png", "2024-01-05 09:05:00"},
        {u"2024-01-05 at 9.05.png", "2024-01-05 09:05:00"},
    };
    for (const auto& [name, date] : names)
        EXPECT_EQ(DateIn(name), date) << VyrPlatform::Encoding::ToUtf8(name);
}

TEST(NameDate, ThreeDigitsBehindTheSecondsAreMilliseconds)
{
    const std::pair<const char16_t*, int> names[] = {
        {u"PXL_20240105_103000123.jpg", 123},  {u"2024-01-05 10.30.00.045", 45},
        {u"2024-01-05 10-30-00,007 x.jpg", 7}, {u"20240105_103000.999.jpg", 999},
        {u"2024-01-05 10.30.00.1234.jpg", 0},  {u"2024-01-05 10.30.00-001.jpg", 0},
        {u"2024-01-05 10.30.jpg", 0},
    };
    for (const auto& [name, milliseconds] : names) {
        NameDateProblem problem = NameDateProblem::None;
        const auto found = FindNameDate(name, problem);
        ASSERT_TRUE(found) << VyrPlatform::Encoding::ToUtf8(name);
        EXPECT_EQ(found->milliseconds, milliseconds) << VyrPlatform::Encoding::ToUtf8(name);
    }
}

TEST(NameDate, HalfOfTheDayIsReadBehindAt)
{
    const std::pair<const char16_t*, const char*> names[] = {
        {u"2024-01-05 at 10.30.00 AM.png", "2024-01-05 10:30:00"},
        {u"2024-01-05 at 10.30.00\u202fPM.png", "2024-01-05 22:30:00"},
        {u"2024-01-05 at 12.30.00 AM.png", "2024-01-05 00:30:00"},
        {u"2024-01-05 at 12.30 PM.png", "2024-01-05 12:30:00"},
        {u"2024-01-05 at 22.30.00 PM.png", "2024-01-05 22:30:00"},
        {u"2024-01-05 at 12.30.00 AMSEL.png", "2024-01-05 12:30:00"},
        {u"2024-01-05 10.30.00 PM.png", "2024-01-05 10:30:00"},
        {u"Screenshot 2024-01-05 at 1.02.03 PM.png", "2024-01-05 13:02:03"},
        {u"Screenshot 2024-01-05 at 1.02.03\u202fPM.png", "2024-01-05 13:02:03"},
        {u"Screenshot 2024-01-05 at 9.05.00 AM.png", "2024-01-05 09:05:00"},
    };
    for (const auto& [name, date] : names)
        EXPECT_EQ(DateIn(name), date) << VyrPlatform::Encoding::ToUtf8(name);
}

TEST(NameDate, ImpossibleTimesAreNoDates)
{
    for (const char16_t* const name :
         {u"IMG_20240105_253000.jpg", u"IMG_20240105_106000.jpg", u"2024-01-05 25.00.00.jpg",
          u"2024-01-05 10.60.00.jpg", u"2024-01-05 10.30.60.123.jpg", u"2024-01-05 at 24.00.00.jpg",
          u"2024-01-05 at 1.60.00 PM.jpg"})
        EXPECT_EQ(DateIn(name), "no such time") << VyrPlatform::Encoding::ToUtf8(name);
    EXPECT_EQ(DateIn(u"20240105_253000 20240301.jpg"), "2024-03-01");
    EXPECT_EQ(DateIn(u"IMG_20240230_253000.jpg"), "no such day");
}

TEST(NameDate, OtherDigitsBehindADateAreNoTime)
{
    for (const char16_t* const name :
         {u"20240105_1030.jpg", u"20240105_12.jpg", u"IMG_20240105_0001.jpg", u"IMG_20240105_9999.jpg",
          u"IMG-20240105-WA0099.jpg", u"2024-01-05_99999.jpg", u"2024-01-05_987654321.jpg", u"20240105_20240112.jpg",
          u"2024-01-05 25.30.jpg", u"2024-01-05 (99).jpg", u"2024-01-05 9.05.00.jpg", u"2024-01-05 at 9.jpg",
          u"2024-01-05 at 9.5.jpg", u"2024-01-05 at 905.jpg"})
        EXPECT_EQ(DateIn(name), "2024-01-05") << VyrPlatform::Encoding::ToUtf8(name);
}

TEST(NameDate, ImpossibleDaysAreDistinguishedFromNoDate)
{
    EXPECT_EQ(DateIn(u"IMG_20240230_103000.jpg"), "no such day");
    EXPECT_EQ(DateIn(u"2023-02-29.jpg"), "no such day");
    EXPECT_EQ(DateIn(u"2024-13-01.jpg"), "no such day");
    for (const char16_t* const name : {u"", u"photo.jpg", u"12345678.jpg", u"2024.jpg", u"202401.jpg", u"2024-0105.jpg",
                                       u"2024-01_05.jpg", u"DSC02024.jpg", u"120240105.jpg", u"2024010512.jpg"})
        EXPECT_EQ(DateIn(name), "none") << VyrPlatform::Encoding::ToUtf8(name);
}

TEST(NameDate, FirstPossibleDateIsTaken)
{
    EXPECT_EQ(DateIn(u"20240230 20240301 20240302.jpg"), "2024-03-01");
}
