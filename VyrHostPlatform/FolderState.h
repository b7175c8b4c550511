/// @file
/// What distinguishes an empty folder from a new one, so that one that was removed can be made again.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>

namespace VyrHostPlatform {

/// The state of the folder at `path`: printable ASCII without blanks, for RestoreFolderState on this system. On Linux
/// it has the permissions, the owner and the extended attributes (among them access lists); on Windows the attributes.
/// @param error  gets the system's error code where there is no result.
[[nodiscard]] std::optional<CString> ReadFolderState(const CString& path, std::uint32_t& error);

/// Gives the folder at `path` the state that ReadFolderState told. An owner or an extended attribute that the user may
/// not set, or the file system cannot hold, is passed over.
/// @return 0, else the system's error code: invalid argument where `state` is not a result of ReadFolderState.
[[nodiscard]] std::uint32_t RestoreFolderState(const CString& path, const CString& state);

/// Whether `state` has the form of what ReadFolderState tells on this system.
[[nodiscard]] bool IsFolderState(const CString& state);

} // namespace VyrHostPlatform
