/// @file
/// The free space for copies of files.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>

namespace VyrHostPlatform {

/// The bytes that the user may still write to the folder `to`, quotas counted where the system does.
/// @return nothing if unknown, and if files in the folder `from` may share their storage with the copies, so that those
/// take no space (btrfs, xfs and others, within one file system).
[[nodiscard]] std::optional<std::uint64_t> GetSpaceForCopies(const CString& from, const CString& to);

} // namespace VyrHostPlatform
