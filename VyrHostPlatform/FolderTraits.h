/// @file
/// Owner, permissions and extended attributes of a folder.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace VyrHostPlatform {

/// Read from one folder, to be given to another.
struct FolderTraits
{
    /// On Linux the permissions (the low twelve bits of the mode), on Windows the attributes.
    std::uint32_t mode = 0;
    /// On Linux the ids of owner and group.
    std::uint32_t owner = 0;
    std::uint32_t group = 0;
    /// On Linux the extended attributes, the access lists among them: names and values, sorted.
    std::vector<std::pair<std::string, std::string>> extended;

    friend bool operator==(const FolderTraits&, const FolderTraits&) = default;
};

/// The traits of the folder at `path`; nothing when there is no folder. On Linux also those of a folder that the user
/// may not read, without the extended attributes that need that permission.
[[nodiscard]] std::optional<FolderTraits> GetFolderTraits(const CString& path);

/// `traits` as printable ASCII without blanks, for ParseFolderTraits on this system.
[[nodiscard]] CString ToText(const FolderTraits& traits);
/// The inverse; nothing where `text` is not a result of ToText.
[[nodiscard]] std::optional<FolderTraits> ParseFolderTraits(const CString& text);

/// Gives the folder at `path` the owner and the extended attributes of `traits`. Leaves out those that the user may not
/// set or the file system cannot keep. On Linux it makes the folder readable for its owner: call SetFolderMode
/// afterwards.
/// @return 0, or the system's error code.
[[nodiscard]] std::uint32_t SetFolderExtras(const CString& path, const FolderTraits& traits);

/// Gives the folder at `path` the permissions or attributes of `traits`; on Linux without the set-id bits unless owner
/// and group are the same. Call it last: a read-only folder takes no extended attributes.
/// @return 0, or the system's error code.
[[nodiscard]] std::uint32_t SetFolderMode(const CString& path, const FolderTraits& traits);

} // namespace VyrHostPlatform
