/// @file
/// Renames without replacing anything, and a rename that replaces a file.
#pragma once

#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrHostPlatform {

/// Renames the file, the folder or the link itself at `from` to `to` on the same file system. When anything exists at
/// `to`, the system itself refuses, so that no other program can create it between check and rename.
///
/// Some Linux file systems lack such a rename. There a file gets the new name as a second link before the old name is
/// removed, and a folder is renamed after a check (every system refuses to replace a folder that is not empty).
/// Anything else is refused.
/// @return 0 when it was renamed, else the system's error code, and nothing has changed.
[[nodiscard]] std::uint32_t RenameNoReplace(const CString& from, const CString& to);

/// Whether RenameNoReplace returned `error` because something is at the new path.
[[nodiscard]] bool IsTargetTaken(std::uint32_t error) noexcept;
/// Whether RenameNoReplace returned `error` because the new path is on another file system.
[[nodiscard]] bool IsOtherFileSystem(std::uint32_t error) noexcept;

/// Renames the file `from` to `to` on the same file system, in place of the regular file there. On Linux it gets that
/// file's permissions, and its owner if the user may set it.
/// @return 0 when it was renamed, else the system's error code (also where nothing or no regular file is at `to`).
[[nodiscard]] std::uint32_t RenameOver(const CString& from, const CString& to);

/// A folder whose entries are queried and renamed by name, which is faster than by path.
///
/// A name is one part of a path, never empty, "." or "..". After a rename of the folder or of a parent, open it again.
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
    /// Completes a rename that was killed between linking and unlinking (see RenameNoReplace): removes the name `name`
    /// of a file that also has the name `keptName` in `kept`.
    /// @return 0 when it was removed, else the system's error code (also when the two are not names of one file).
    [[nodiscard]] std::uint32_t DropSecondName(std::u16string_view name, const OpenFolder& kept,
                                               std::u16string_view keptName) const;
    /// Creates the folder `name` in this folder.
    /// @return 0 when it was created, else the system's error code (one that exists already is an error).
    [[nodiscard]] std::uint32_t MakeFolder(std::u16string_view name) const;
    /// Removes the folder `name` when it is empty.
    /// @return 0 when it was removed, else the system's error code.
    [[nodiscard]] std::uint32_t RemoveEmptyFolder(std::u16string_view name) const;

private:
    CString m_path;
    std::intptr_t m_handle = -1;
    std::uint32_t m_error = 0;
};

} // namespace VyrHostPlatform
