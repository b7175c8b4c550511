/// @file
/// The state of an empty folder, so that a removed folder can be created again exactly.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>

namespace VyrHostPlatform {

/// The state of the folder at `path`: printable ASCII without blanks, for RestoreFolderState on this system. On Linux
/// it has the permissions, the owner and the extended attributes (among them access lists); on Windows the attributes.
/// @param error  gets the system's error code where there is no result.
[[nodiscard]] std::optional<CString> ReadFolderState(const CString& path, std::uint32_t& error);

/// Gives the folder at `path` the state from ReadFolderState. Skips an owner or an extended attribute that the user may
/// not set or the file system cannot store.
/// @return 0, else the system's error code: invalid argument where `state` is not a result of ReadFolderState.
[[nodiscard]] std::uint32_t RestoreFolderState(const CString& path, const CString& state);

/// Whether `state` has the form of a result of ReadFolderState on this system.
[[nodiscard]] bool IsFolderState(const CString& state);

} // namespace VyrHostPlatform
