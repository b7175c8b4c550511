/// @file
/// Reads times and attributes of a file so exactly that they can be restored.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>

namespace VyrPlatform::ExactState {

/// A value that is read and restored separately.
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

/// The value of `part` of the file or folder at `path` (a link is followed): printable ASCII, for Restore on this
/// system.
/// @param error  gets the system's error code where there is no result.
[[nodiscard]] VYR_PLATFORM_API std::optional<CString> Read(const CString& path, Part part, std::uint32_t& error);

/// A time of a file.
struct TimeState
{
    FileTicks ticks = 0;
    /// What Read gives.
    CString state;
    /// The file itself, where the same look tells it (on Linux).
    std::optional<FileIdentity> file;
    /// A file (no folder) that is protected against writing: on Linux by its mode, on Windows by its attribute.
    bool isReadOnly = false;
};

/// The time `part` (not Attributes) of the file or folder at `path`, and its exact state, both of one look.
/// @param error  gets the system's error code where there is no result.
[[nodiscard]] VYR_PLATFORM_API std::optional<TimeState> ReadTime(const CString& path, Part part, std::uint32_t& error);

/// Restores `part` from the text that Read gave, also where the file is read-only. On Linux the other fields of the
/// same extended attribute, and the read permissions, keep their present values.
/// @return 0, else the system's error code: invalid argument where `state` is not a result of Read.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Restore(const CString& path, Part part, const CString& state);

} // namespace VyrPlatform::ExactState
