#include <VyrPlatform/process/SystemLibrary.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <windows.h>

namespace VyrPlatform {

SystemLibrary::SystemLibrary(const CString& path) : m_handle(::LoadLibraryW(ToWide(path))) {}

SystemLibrary::AnyFunction* SystemLibrary::FindAny(const char* name) const
{
    if (!m_handle)
        return nullptr;
    return reinterpret_cast<AnyFunction*>(::GetProcAddress(static_cast<HMODULE>(m_handle), name));
}

} // namespace VyrPlatform
