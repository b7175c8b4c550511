// For tests: a temporary folder on the disk.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>
#include <string_view>

namespace VyrTests {

/// A new empty folder in the system's temporary folder. Removes itself with its contents, also with entries that cannot
/// be read or written.
///
/// `name` may have several parts, separated by slashes; missing folders before the last part are created.
class ScratchFolder
{
public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    /// The folder's full path, without a separator at its end.
    [[nodiscard]] const CString& Path() const noexcept { return m_path; }
    /// The full path of `name` in the folder, with the system's separators.
    [[nodiscard]] CString Path(std::u16string_view name) const;

    /// Creates the file `name`, or replaces its content.
    /// @return its full path.
    CString WriteFile(std::u16string_view name, std::string_view bytes = {}) const;
    /// Creates the folder `name`.
    /// @return its full path.
    CString MakeFolder(std::u16string_view name) const;

    /// The content of the file `name`; a test failure and empty when it cannot be read.
    [[nodiscard]] std::string ReadFile(std::u16string_view name) const;
    /// Whether `name` exists; a broken link counts.
    [[nodiscard]] bool Has(std::u16string_view name) const;

private:
    CString m_path;
};

} // namespace VyrTests
