/// @file
/// Queries what is at a path, creates folders, and removes files.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>

namespace VyrPlatform::FileSystem {

enum class Kind : std::uint8_t
{
    Missing,
    File,
    Folder,
    /// A device, a pipe, a socket, or a link to nothing.
    Other
};

/// The result of one query of a path.
struct Entry
{
    Kind kind = Kind::Missing;
    /// The path itself is a symbolic link (a reparse point that leads to another path).
    bool isLink = false;
    /// In bytes; 0 unless it is a file.
    std::int64_t size = 0;
    /// The times; nothing where the entry could not be asked, as of a link that leads nowhere.
    std::optional<FileTicks> modified;
    std::optional<FileTicks> accessed;
    /// As the file system reports it; FileTimes::GetCreated also follows other conventions.
    std::optional<FileTicks> created;
};

/// The entry at `path`. Follows a link; one that leads nowhere is of kind Other. A path that the system cannot examine
/// (a missing parent, no permission, an invalid name) is Missing.
[[nodiscard]] VYR_PLATFORM_API Entry Query(const CString& path);

/// Whether there is an entry at `path`, including a link that leads nowhere.
[[nodiscard]] VYR_PLATFORM_API bool Exists(const CString& path);
/// Whether there is a folder, or a link to one, at `path`.
[[nodiscard]] VYR_PLATFORM_API bool IsFolder(const CString& path);

/// The target of the symbolic link (on Windows also the junction) at `path`, as stored in it; nothing when there is no
/// such link.
[[nodiscard]] VYR_PLATFORM_API std::optional<CString> GetLinkTarget(const CString& path);

/// Creates the folder `path`, whose parent exists.
/// @return 0 when it was created, else the system's error code (also where it exists already).
[[nodiscard]] VYR_PLATFORM_API std::uint32_t CreateFolder(const CString& path);

/// Removes the file `path` (a link itself, not its target).
/// @return 0 when it was removed, else the system's error code. Folders are refused, and on Windows read-only files.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t RemoveFile(const CString& path);

/// Whether `unit` separates the parts of a path on this system.
[[nodiscard]] VYR_PLATFORM_API bool IsSeparator(char16_t unit) noexcept;
/// The separator that this system uses in its own paths.
[[nodiscard]] VYR_PLATFORM_API char16_t Separator() noexcept;
/// Whether the last code unit of `path` is a separator; false for an empty path.
[[nodiscard]] VYR_PLATFORM_API bool EndsWithSeparator(std::u16string_view path) noexcept;
/// `folder` with a separator at its end: `a/` for `a` and for `a/`.
[[nodiscard]] VYR_PLATFORM_API CString WithSeparator(const CString& folder);
/// The path of `name` in `folder`, with one separator between them: `a/b` for `a` and `b`, and for `a/` and `b`. An
/// empty `folder` gives `name`.
[[nodiscard]] VYR_PLATFORM_API CString JoinPath(const CString& folder, std::u16string_view name);

} // namespace VyrPlatform::FileSystem
