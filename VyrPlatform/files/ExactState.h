/// @file
/// What a file has besides its content, kept so exactly that it can be put back.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>

namespace VyrPlatform::ExactState {

/// What is read and put back for itself.
enum class Part : std::uint8_t
{
    /// The time of the last change, to the file system's precision.
    Modified,
    Accessed,
    /// On Linux the extended attributes that keep it (FileTimes::SetCreated).
    Created,
    /// On Linux the extended attributes that keep them and the permission to write.
    Attributes
};

/// How the file or folder at `path` has `part` (a link is followed): printable ASCII, which Restore reads on this
/// system.
/// @param error  gets the system's error code where nothing is returned.
[[nodiscard]] VYR_PLATFORM_API std::optional<CString> Read(const CString& path, Part part, std::uint32_t& error);

/// Puts `part` back as Read gave it, also where the file is read-only. On Linux what others have put into the same
/// extended attribute since, and the permissions to read, stay.
/// @return 0, else the system's error code: that of an invalid argument where `state` is none that Read gives.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Restore(const CString& path, Part part, const CString& state);

} // namespace VyrPlatform::ExactState
