// Calendar arithmetic compared with a calendar in another language, with all rules written out.
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>

#include <tests/support/ChildProcess.h>
#include <tests/support/DebugCapture.h>
#include <tests/support/Describe.h>

#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>

#include <sstream>

using VyrLibraryFuncs::DateTimeFuncs;
using VyrTests::Describe;

TEST(CalendarModel, HundredThousandRandomStepsAgree)
{
    const CString script = VyrPlatform::Encoding::FromUtf8(std::string(VYR_SOURCE_FOLDER) +
                                                           "/tests/VyrLibraryFuncs/metadata/calendar_model.py");
    const VyrTests::ProgramResult model =
        VyrTests::RunProgram({.program = u"/usr/bin/python3", .arguments = {script, u"20240105", u"100000"}});
    ASSERT_EQ(model.exitCode, 0) << model.errors;

    const VyrTests::DebugCapture capture;
    std::istringstream lines(model.output);
    std::size_t count = 0;
    std::size_t refused = 0;
    for (int year, month, day, years, months, days, newYear, newMonth, newDay;
         lines >> year >> month >> day >> years >> months >> days >> newYear >> newMonth >> newDay; ++count) {
        const COleDateTime date(year, month, day, 12, 34, 56);
        const bool isRefused = newYear == 0;
        refused += isRefused ? 1 : 0;
        const COleDateTime expected = isRefused ? date : COleDateTime(newYear, newMonth, newDay, 12, 34, 56);
        const COleDateTime moved = DateTimeFuncs::GetCalDateTime(date, years, months, days);
        ASSERT_EQ(Describe(moved), Describe(expected))
            << Describe(date) << ' ' << years << ' ' << months << ' ' << days;
    }
    EXPECT_EQ(count, 100'000U);
    EXPECT_GT(refused, 10'000U);
    EXPECT_LT(refused, 90'000U);
    EXPECT_EQ(capture.Texts().size(), refused);
    for (const CString& line : capture.Texts())
        ASSERT_NE(line.View().find(u"\"Year is out of valid range: 1400..9999\""), line.View().npos);
}
