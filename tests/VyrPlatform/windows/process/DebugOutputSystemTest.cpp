// Without a sink, debugger output reaches the system's: it raises the exception that an attached debugger reads.
#include <VyrPlatform/process/DebugOutput.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>
#include <string>
#include <windows.h>

namespace {

/// The texts in the exceptions of the debugger output.
std::string& Seen()
{
    static std::string seen;
    return seen;
}

LONG WINAPI Watch(EXCEPTION_POINTERS* pointers)
{
    // Windows raises the exception for wide texts; Wine at once the one for byte texts, which Windows raises only where
    // nobody answers the first. Both carry the length with its NUL, then the text.
    constexpr DWORD wideText = 0x4001000A;
    constexpr DWORD byteText = 0x40010006;
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (record.ExceptionCode != wideText && record.ExceptionCode != byteText)
        return EXCEPTION_CONTINUE_SEARCH;
    const std::size_t length = record.ExceptionInformation[0] - 1;
    if (record.ExceptionCode == byteText) {
        Seen().assign(reinterpret_cast<const char*>(record.ExceptionInformation[1]), length);
    } else {
        const auto* const text = reinterpret_cast<const char16_t*>(record.ExceptionInformation[1]);
        Seen() = VyrPlatform::Encoding::ToUtf8({text, length});
    }
    return EXCEPTION_CONTINUE_EXECUTION;
}

} // namespace

TEST(DebugOutputSystemTest, TextReachesTheDebugger)
{
    Seen().clear();
    void* const watcher = ::AddVectoredExceptionHandler(1, Watch);
    VyrPlatform::DebugOutput::Write(u"to the debugger\r\n");
    ::RemoveVectoredExceptionHandler(watcher);
    EXPECT_EQ(Seen(), "to the debugger\r\n");
}
