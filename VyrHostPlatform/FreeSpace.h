/// @file
/// How much space copies of files find.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>

namespace VyrHostPlatform {

/// The bytes that the user may still write to the folder `to`, quotas counted where the system does.
/// @return nothing where the system does not tell, and where files that are copied from the folder `from` may share
/// their storage with the copies, so that those take no space (btrfs, xfs and others, within one file system).
[[nodiscard]] std::optional<std::uint64_t> GetSpaceForCopies(const CString& from, const CString& to);

} // namespace VyrHostPlatform
