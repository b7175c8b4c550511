/// @file
/// A shared library that the tests load at run time, as a host that is not linked to it does.
#pragma once

#include <string>
#include <vector>

namespace VyrTests {

/// Loads on construction, unloads on destruction.
class DynamicLibrary
{
public:
    /// Loads the library `name` (such as "VyrLibraryFuncs") that stands beside the running program.
    explicit DynamicLibrary(const std::string& name);
    DynamicLibrary(const DynamicLibrary&) = delete;
    DynamicLibrary& operator=(const DynamicLibrary&) = delete;
    ~DynamicLibrary();

    [[nodiscard]] bool IsLoaded() const noexcept { return m_handle != nullptr; }
    /// The address of the export `symbol`; null when there is none.
    [[nodiscard]] void* Find(const std::string& symbol) const;
    /// The mangled symbols in the library's table of exports.
    [[nodiscard]] std::vector<std::string> Exports() const;

    /// Whether the library `name` is in the process now, whoever loaded it.
    [[nodiscard]] static bool IsInProcess(const std::string& name);

private:
    void* m_handle;
};

} // namespace VyrTests
