// For tests: a folder of their own on the disk.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>
#include <string_view>

namespace VyrTests {

/// A new empty folder in the system's folder for temporary files, removed at the end with all that it holds then, even
/// what may not be written or read.
///
/// A name below may have several parts, separated by slashes; the folders in front of the last part are made as needed.
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

    /// Makes the file `name`, or replaces its content.
    /// @return its full path.
    CString WriteFile(std::u16string_view name, std::string_view bytes = {}) const;
    /// Makes the folder `name`.
    /// @return its full path.
    CString MakeFolder(std::u16string_view name) const;

    /// The content of the file `name`; a test failure and empty when it cannot be read.
    [[nodiscard]] std::string ReadFile(std::u16string_view name) const;
    /// Whether anything stands at `name`, a link that leads nowhere included.
    [[nodiscard]] bool Has(std::u16string_view name) const;

private:
    CString m_path;
};

} // namespace VyrTests
