// Debugger output with and without a sink.
#include <tests/support/DebugCapture.h>

#include <VyrPlatform/process/DebugOutput.h>

#include <gtest/gtest.h>
#include <string_view>
#include <thread>

using namespace VyrPlatform;
using VyrTests::DebugCapture;

TEST(DebugOutputTest, SinkGetsEachTextUnchanged)
{
    using namespace std::string_view_literals;
    const DebugCapture capture;
    DebugOutput::Write(u"one\r\n");
    DebugOutput::Write(CString(u"tw\0o \xDC80 ä"sv));
    DebugOutput::Write(u"");
    const std::vector<CString> texts = capture.Texts();
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0], u"one\r\n");
    EXPECT_EQ(texts[1], u"tw\0o \xDC80 ä"sv);
    EXPECT_EQ(texts[2], u"");
}

TEST(DebugOutputTest, SinkGetsTextsOfEveryThread)
{
    const DebugCapture capture;
    std::thread([] { DebugOutput::Write(u"elsewhere"); }).join();
    EXPECT_EQ(capture.Texts(), std::vector<CString>{u"elsewhere"});
}

TEST(DebugOutputTest, EndedCaptureGetsNothingMore)
{
    int count = 0;
    DebugOutput::SetSink([&](const CString&) { ++count; });
    DebugOutput::Write(u"counted");
    DebugOutput::SetSink({});
    DebugOutput::Write(u"not counted");
    EXPECT_EQ(count, 1);
}
