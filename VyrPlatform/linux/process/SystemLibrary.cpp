#include <VyrPlatform/process/SystemLibrary.h>
#include <VyrPlatform/text/Encoding.h>

#include <dlfcn.h>

namespace VyrPlatform {

SystemLibrary::SystemLibrary(const CString& path)
    // An empty path would load the program itself.
    : m_handle(path.IsEmpty() ? nullptr
                              : ::dlopen(Encoding::ToNameBytes(path).c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE))
{}

SystemLibrary::AnyFunction* SystemLibrary::FindAny(const char* name) const
{
    return m_handle ? reinterpret_cast<AnyFunction*>(::dlsym(m_handle, name)) : nullptr;
}

} // namespace VyrPlatform
