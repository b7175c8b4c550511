#include <VyrPlatform/common/process/SystemDebugOutput.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <windows.h>

namespace VyrPlatform::DebugOutput {

void WriteToSystem(const CString& text)
{
    ::OutputDebugStringW(ToWide(text));
}

} // namespace VyrPlatform::DebugOutput
