/// @file
/// What a folder has besides its entries and times.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace VyrHostPlatform {

/// Taken of one folder to be given to another one.
struct FolderTraits
{
    /// On Linux the permissions (the low twelve bits of the mode), on Windows the attributes.
    std::uint32_t mode = 0;
    /// On Linux the ids of owner and group.
    std::uint32_t owner = 0;
    std::uint32_t group = 0;
    /// On Linux the extended attributes, the access lists among them: names and values.
    std::vector<std::pair<std::string, std::string>> extended;
};

/// The traits of the folder at `path`; nothing where there is none. On Linux those of a folder that may not
/// be read, too, without the extended attributes that are kept from the user with it.
[[nodiscard]] std::optional<FolderTraits> GetFolderTraits(const CString& path);

/// Gives the folder at `path` the owner and the extended attributes of `traits`. What the user may not give, or the
/// file system cannot keep, is left out. On Linux a folder that its owner may not read becomes one that the owner may:
/// SetFolderMode comes afterwards.
/// @return 0, or the system's error code.
[[nodiscard]] std::uint32_t SetFolderExtras(const CString& path, const FolderTraits& traits);

/// Gives the folder at `path` the permissions or attributes of `traits`; on Linux without the set-id bits unless it has
/// the owner and group, too. It comes last, since a folder that may not be written takes no extended attributes.
/// @return 0, or the system's error code.
[[nodiscard]] std::uint32_t SetFolderMode(const CString& path, const FolderTraits& traits);

} // namespace VyrHostPlatform
