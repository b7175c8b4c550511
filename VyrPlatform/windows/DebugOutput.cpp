// Hands the debugger output to an attached debugger.
#include <VyrPlatform/WindowsCString.h>
#include <VyrPlatform/common/SystemDebugOutput.h>

#include <windows.h>

namespace VyrPlatform::DebugOutput {

void WriteToSystem(const CString& text)
{
    ::OutputDebugStringW(ToWide(text));
}

} // namespace VyrPlatform::DebugOutput
