/// @file
/// Libraries of the system that are loaded while the program runs.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform {

/// A library that stays in the process once it is loaded.
class VYR_PLATFORM_API SystemLibrary
{
public:
    /// Loads the library at the full path `path`, or finds it loaded.
    explicit SystemLibrary(const CString& path);

    [[nodiscard]] bool IsLoaded() const noexcept { return m_handle != nullptr; }
    /// Its function `name`, of the type that the caller knows it to have; a null pointer when it has none, or is not
    /// loaded.
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
