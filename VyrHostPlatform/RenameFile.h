/// @file
/// The rename that never replaces anything.
#pragma once

#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrHostPlatform {

/// Gives what stands at `from` (a file, a folder, a link itself) the path `to` on the same file system. The system
/// itself refuses when anything stands at `to`, without a moment between the look and the rename.
///
/// Where a Linux file system lacks such a rename, a file gets its new name as a second link before the old one is taken
/// away, and a folder is renamed after a look (a rename onto a folder that holds something is refused by every system).
/// What can be renamed safely in neither way is refused.
/// @return 0 when it was renamed, else the system's error code, and nothing has changed.
[[nodiscard]] std::uint32_t RenameNoReplace(const CString& from, const CString& to);

/// Whether RenameNoReplace answers `error` because something stands at the new path.
[[nodiscard]] bool IsTargetTaken(std::uint32_t error) noexcept;
/// Whether RenameNoReplace answers `error` because the new path is on another file system.
[[nodiscard]] bool IsOtherFileSystem(std::uint32_t error) noexcept;

/// One folder whose entries are looked at and renamed by their names alone, which is quicker than by their paths.
///
/// The names are single parts of a path, never empty, "." or "..". When the folder or one above it has been renamed,
/// make the object anew.
class OpenFolder
{
public:
    /// Opens the folder at `path` (a link to one is followed); IsOpen tells whether that succeeded, Error why not.
    explicit OpenFolder(const CString& path);
    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;
    ~OpenFolder();

    [[nodiscard]] bool IsOpen() const noexcept { return m_error == 0; }
    /// The system's error code when the folder did not open, else 0.
    [[nodiscard]] std::uint32_t Error() const noexcept { return m_error; }

    /// LookAtFile for the entry `name`.
    [[nodiscard]] VyrPlatform::FileState Look(std::u16string_view name) const;
    /// RenameNoReplace from the entry `name` to `newName` in `target`, which may be this folder. Both are open.
    [[nodiscard]] std::uint32_t RenameNoReplace(std::u16string_view name, const OpenFolder& target,
                                                std::u16string_view newName) const;
    /// Ends a rename that was cut off between its two halves (see RenameNoReplace): takes the name `name` away from a
    /// file that has the name `keptName` in `kept` too.
    /// @return 0 when it was taken away, else the system's error code (also when the two are not names of one file).
    [[nodiscard]] std::uint32_t DropSecondName(std::u16string_view name, const OpenFolder& kept,
                                               std::u16string_view keptName) const;
    /// Makes the folder `name` in this one.
    /// @return 0 when it was made, else the system's error code (one that exists already is an error).
    [[nodiscard]] std::uint32_t MakeFolder(std::u16string_view name) const;
    /// Takes the folder `name` away when it is empty.
    /// @return 0 when it is gone, else the system's error code.
    [[nodiscard]] std::uint32_t RemoveEmptyFolder(std::u16string_view name) const;

private:
    CString m_path;
    std::intptr_t m_handle = -1;
    std::uint32_t m_error = 0;
};

} // namespace VyrHostPlatform
