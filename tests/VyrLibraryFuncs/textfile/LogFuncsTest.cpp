// The form of a line, the name of the day's file, and exceptions of the sink.
#include <VyrLibraryFuncs/textfile/LogFuncs.h>

#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/files/CFileException.h>
#include <VyrPlatform/process/DebugOutput.h>
#include <VyrPlatform/process/Process.h>

#include <tests/support/DebugCapture.h>
#include <tests/support/Describe.h>
#include <tests/support/FixedClock.h>
#include <tests/support/StdPath.h>
#include <tests/support/UserLocale.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <thread>
#include <vector>

using testing::ElementsAre;
using VyrLibraryFuncs::LogFuncs;
using VyrTests::DebugCapture;
using VyrTests::FixedClock;

namespace {

const COleDateTime moment(2024, 1, 5, 10, 30, 0);

/// The base name of this test program.
CString ProgramName()
{
    return VyrTests::FromStdPath(VyrTests::ToStdPath(VyrPlatform::Process::GetProgramPath()).stem());
}

/// Takes the texts of the debugger output, and throws at the first of them.
template <class Exception>
class ThrowingSink
{
public:
    explicit ThrowingSink(Exception exception)
    {
        VyrPlatform::DebugOutput::SetSink([this, exception](const CString& text) {
            m_texts.push_back(text);
            if (m_texts.size() == 1)
                throw Exception(exception);
        });
    }
    ThrowingSink(const ThrowingSink&) = delete;
    ThrowingSink& operator=(const ThrowingSink&) = delete;
    ~ThrowingSink() { VyrPlatform::DebugOutput::SetSink({}); }

    [[nodiscard]] const std::vector<CString>& Texts() const noexcept { return m_texts; }

private:
    std::vector<CString> m_texts;
};

} // namespace

TEST(LogFuncs, LineHasDateTimeLevelAndMessageInQuotes)
{
    const FixedClock clock(moment);
    const DebugCapture capture;
    EXPECT_EQ(LogFuncs::Write(u"/x/y.log", u"It failed", 7), 0);
    EXPECT_THAT(capture.Texts(), ElementsAre(CString(u"\"2024/01/05 10:30:00\",\"7\",\"It failed\"\r\n")));
}

TEST(LogFuncs, LevelIsTwoByDefault)
{
    const FixedClock clock(moment);
    const DebugCapture capture;
    EXPECT_EQ(LogFuncs::Write(u"a"), 0);
    EXPECT_EQ(LogFuncs::Write(u"a", -3), 0);
    EXPECT_THAT(capture.Texts(), ElementsAre(CString(u"\"2024/01/05 10:30:00\",\"2\",\"a\"\r\n"),
                                             CString(u"\"2024/01/05 10:30:00\",\"-3\",\"a\"\r\n")));
}

TEST(LogFuncs, QuotesCommasAndLineEndsOfTheMessageStayAsTheyAre)
{
    const FixedClock clock(moment);
    const DebugCapture capture;
    LogFuncs::Write(u"", u"a\"b,c\r\nd\u4E2D", 2);
    LogFuncs::Write(u"", u"", 2);
    EXPECT_THAT(capture.Texts(), ElementsAre(CString(u"\"2024/01/05 10:30:00\",\"2\",\"a\"b,c\r\nd\u4E2D\"\r\n"),
                                             CString(u"\"2024/01/05 10:30:00\",\"2\",\"\"\r\n")));
}

TEST(LogFuncs, PathDoesNotMatter)
{
    const FixedClock clock(moment);
    const DebugCapture capture;
    for (const CString& path : {CString(), CString(u"/no/such/folder/x.log"), CString(u"\\\\?\\<>|"),
                                LogFuncs::GetApplicationLogFilePath()}) {
        EXPECT_EQ(LogFuncs::Write(path, u"a", 2), 0);
        EXPECT_EQ(capture.Texts().back(), capture.Texts().front());
    }
    EXPECT_EQ(capture.Texts().size(), 4U);
}

TEST(LogFuncs, LineDoesNotFollowTheLocale)
{
    const VyrTests::UserLocale german(u"de_DE");
    const FixedClock clock(moment);
    const DebugCapture capture;
    LogFuncs::Write(u"a", 1234567);
    EXPECT_THAT(capture.Texts(), ElementsAre(CString(u"\"2024/01/05 10:30:00\",\"1234567\",\"a\"\r\n")));
    EXPECT_TRUE(LogFuncs::GetLogFileName().View().starts_with(u"2024-01-05_"));
}

TEST(LogFuncs, FileNameIsTheDateAndTheProgramsName)
{
    const FixedClock clock(moment);
    EXPECT_EQ(LogFuncs::GetLogFileName(), CString::Join({u"2024-01-05_", ProgramName(), u".log"}));
}

TEST(LogFuncs, FileNameChangesAtLocalMidnight)
{
    const CString rest = CString::Join({u"_", ProgramName(), u".log"});
    {
        const FixedClock clock(COleDateTime(2024, 2, 29, 23, 59, 59));
        EXPECT_EQ(LogFuncs::GetLogFileName(), u"2024-02-29" + rest);
    }
    const FixedClock clock(COleDateTime(2024, 3, 1, 0, 0, 0));
    EXPECT_EQ(LogFuncs::GetLogFileName(), u"2024-03-01" + rest);
}

TEST(LogFuncs, FilePathIsTheNameInTheLogFolder)
{
    const FixedClock clock(moment);
    const std::filesystem::path path = VyrTests::ToStdPath(LogFuncs::GetApplicationLogFilePath());
    EXPECT_EQ(VyrTests::FromStdPath(path.filename()), LogFuncs::GetLogFileName());
    EXPECT_EQ(path.parent_path(), VyrTests::ToStdPath(VyrLibraryUtils::PathUtils::GetApplicationLogFolderPath()));
}

TEST(LogFuncs, CauseOfAFileExceptionIsSentInstead)
{
    const FixedClock clock(moment);
    const ThrowingSink sink(CFileException(CFileException::diskFull, 28, u"x"));
    EXPECT_EQ(LogFuncs::Write(u"a"), 0);
    EXPECT_THAT(sink.Texts(), ElementsAre(CString(u"\"2024/01/05 10:30:00\",\"2\",\"a\"\r\n"), CString(u"13")));
}

TEST(LogFuncs, OtherExceptionsPassToTheCaller)
{
    const ThrowingSink sink(std::runtime_error("not a file"));
    EXPECT_THROW(LogFuncs::Write(u"a"), std::runtime_error);
    EXPECT_EQ(sink.Texts().size(), 1U);
}

TEST(LogFuncs, SeveralThreadsWriteWholeLines)
{
    const FixedClock clock(moment);
    const DebugCapture capture;
    constexpr int threadCount = 4;
    constexpr int lineCount = 200;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([thread] {
            for (int line = 0; line < lineCount; ++line)
                LogFuncs::Write(CString(static_cast<char16_t>(u'a' + thread), line), thread);
        });
    for (std::thread& thread : threads)
        thread.join();
    std::vector<int> next(threadCount);
    for (const CString& text : capture.Texts()) {
        const int thread = text[23] - u'0';
        ASSERT_TRUE(thread >= 0 && thread < threadCount);
        CString expected;
        expected.Format(u"\"2024/01/05 10:30:00\",\"%d\",\"%s\"\r\n", thread,
                        CString(static_cast<char16_t>(u'a' + thread), next[static_cast<std::size_t>(thread)]++));
        ASSERT_EQ(text, expected);
    }
    EXPECT_EQ(next, std::vector<int>(threadCount, lineCount));
}
