// On Windows the library for C has a debugger output of its own. The system raises an exception for every text, as for
// a debugger.
#include <windows.h>

#include <tests/VyrC/OutsideCalls.h>

#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/WindowsCString.h>

namespace VyrCTests {

namespace {

constexpr DWORD textWritten = 0x40010006;
constexpr DWORD wideTextWritten = 0x4001000A;
std::string* written = nullptr;

/// Some systems raise the one exception, and some the other. The length counts the zero at the end.
LONG CALLBACK TakeText(EXCEPTION_POINTERS* pointers)
{
    const EXCEPTION_RECORD& raised = *pointers->ExceptionRecord;
    const bool isWide = raised.ExceptionCode == wideTextWritten;
    if ((!isWide && raised.ExceptionCode != textWritten) || raised.NumberParameters < 2)
        return EXCEPTION_CONTINUE_SEARCH;
    const std::size_t length = raised.ExceptionInformation[0] - 1;
    const ULONG_PTR text = raised.ExceptionInformation[1];
    if (isWide)
        *written +=
            VyrPlatform::Encoding::ToUtf8(VyrPlatform::FromWide({reinterpret_cast<const wchar_t*>(text), length}));
    else
        written->append(reinterpret_cast<const char*>(text), length);
    return EXCEPTION_CONTINUE_EXECUTION;
}

} // namespace

struct OutsideCalls::Record
{
    std::string text;
    void* handler = nullptr;
};

OutsideCalls::OutsideCalls() : m_record(std::make_unique<Record>())
{
    written = &m_record->text;
    m_record->handler = ::AddVectoredExceptionHandler(1, &TakeText);
}

OutsideCalls::~OutsideCalls()
{
    ::RemoveVectoredExceptionHandler(m_record->handler);
    written = nullptr;
}

const std::string& OutsideCalls::Text() const
{
    return m_record->text;
}

void OutsideCalls::Clear()
{
    m_record->text.clear();
}

} // namespace VyrCTests
