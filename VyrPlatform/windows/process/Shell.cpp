#include <VyrPlatform/common/process/SystemShell.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <windows.h>

#include <shellapi.h>

namespace VyrPlatform::Shell {

std::uintptr_t StartBySystem(Window owner, const CString& path, const CString& arguments)
{
    return reinterpret_cast<std::uintptr_t>(
        ::ShellExecuteW(owner, nullptr, ToWide(path), ToWide(arguments), nullptr, SW_SHOWNORMAL));
}

} // namespace VyrPlatform::Shell
