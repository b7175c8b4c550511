// For tests: the disk of a Windows that does not run.
#pragma once

#include <tests/support/RegistryTree.h>
#include <tests/support/ScratchFolder.h>

#include <initializer_list>
#include <string_view>
#include <utility>

namespace VyrTests {

/// A value of an uninstall entry or a product: its name and its text.
using NamedTexts = std::initializer_list<std::pair<std::u16string_view, std::u16string_view>>;

/// Adds the key at `path` below `tree`, with its texts.
void AddTexts(RegistryTree& tree, std::u16string_view path, NamedTexts texts);
void AddNumber(RegistryTree& tree, std::u16string_view path, std::u16string_view name, std::uint32_t number);

/// A disk that is written file by file.
class WindowsDisk
{
public:
    [[nodiscard]] const CString& Path() const { return m_folder.Path(); }
    [[nodiscard]] const ScratchFolder& Folder() const { return m_folder; }

    /// Writes a hive; `name` may have folders.
    /// @return its full path.
    CString WriteHive(std::u16string_view name, const RegistryTree& tree) const;
    /// Writes the hive of the machine's programs.
    CString WriteSoftware(const RegistryTree& tree) const
    {
        return WriteHive(u"Windows/System32/config/SOFTWARE", tree);
    }
    /// Writes the hive of a user, in the folder `Users`.
    CString WriteUser(std::u16string_view user, const RegistryTree& tree) const;

private:
    ScratchFolder m_folder;
};

/// The path of the uninstall entry `name` in the hive of the machine's programs.
[[nodiscard]] CString MachineEntry(std::u16string_view name);
/// Likewise in the keys of 32-bit programs.
[[nodiscard]] CString MachineEntry32(std::u16string_view name);
/// Likewise in the hive of a user.
[[nodiscard]] CString UserEntry(std::u16string_view name);

} // namespace VyrTests
