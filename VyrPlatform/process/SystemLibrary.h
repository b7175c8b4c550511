/// @file
/// Libraries of the system, loaded at run time.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform {

/// A library that stays in the process once it is loaded.
class VYR_PLATFORM_API SystemLibrary
{
public:
    /// Loads the library at the full path `path` unless it is loaded already.
    explicit SystemLibrary(const CString& path);

    [[nodiscard]] bool IsLoaded() const noexcept { return m_handle != nullptr; }
    /// Its function `name`, cast to the type `Function`; a null pointer when the library has none or is not loaded.
    template <class Function>
    [[nodiscard]] Function* Find(const char* name) const
    {
        return reinterpret_cast<Function*>(FindAny(name));
    }

private:
    using AnyFunction = void();
    [[nodiscard]] AnyFunction* FindAny(const char* name) const;

    void* m_handle;
};

} // namespace VyrPlatform
