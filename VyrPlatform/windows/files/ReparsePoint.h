// The data of symbolic links and junctions.
#pragma once

#include "LongPath.h"

#include <VyrPlatform/Export.h>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace VyrPlatform {

/// What a link holds. (REPARSE_DATA_BUFFER in the documentation of the Windows drivers.)
struct LinkTarget
{
    /// A junction leads to a folder of this machine; else the link is a symbolic one.
    bool isJunction = false;
    /// The path as the system follows it.
    CString path;
    /// The path as it is shown to people, and as the call that makes a symbolic link takes it.
    CString shownPath;
};

/// The target in the data of a reparse point; nothing where that is no link, or is damaged. Exported for its tests
/// alone.
[[nodiscard]] VYR_PLATFORM_API std::optional<LinkTarget> ParseReparsePoint(std::span<const std::byte> data);

/// The data of the reparse point at `path`; empty, with the last error set, where there is none.
[[nodiscard]] std::vector<std::byte> ReadReparsePoint(const LongPath& path);

/// Makes at `destination`, where nothing stands, a link like that at `source`.
/// @return 0, or the error code; nothing is left then.
[[nodiscard]] std::uint32_t CopyReparsePoint(const LongPath& source, const LongPath& destination);

} // namespace VyrPlatform
