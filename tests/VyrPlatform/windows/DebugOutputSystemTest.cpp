// Without a sink, debugger output reaches the system's: it raises the exception that an attached debugger reads.
#include <VyrPlatform/DebugOutput.h>

#include <gtest/gtest.h>
#include <string>
#include <windows.h>

namespace {

/// What the exceptions of the debugger output have carried.
std::wstring& Seen()
{
    static std::wstring seen;
    return seen;
}

LONG WINAPI Watch(EXCEPTION_POINTERS* pointers)
{
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    // The exception for wide texts; the system then asks for the one of byte texts, unless this one was answered.
    constexpr DWORD wideText = 0x4001000A;
    if (record.ExceptionCode != wideText)
        return EXCEPTION_CONTINUE_SEARCH;
    Seen() = reinterpret_cast<const wchar_t*>(record.ExceptionInformation[1]);
    return EXCEPTION_CONTINUE_EXECUTION;
}

} // namespace

TEST(DebugOutputSystemTest, TextReachesTheDebugger)
{
    Seen().clear();
    void* const watcher = ::AddVectoredExceptionHandler(1, Watch);
    VyrPlatform::DebugOutput::Write(u"to the debugger: \u00E4 \u65E5\r\n");
    ::RemoveVectoredExceptionHandler(watcher);
    EXPECT_EQ(Seen(), L"to the debugger: \u00E4 \u65E5\r\n");
}
