// The data of symbolic links and junctions.
#pragma once

#include "LongPath.h"

#include <VyrPlatform/Export.h>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace VyrPlatform {

/// The content of a link. (REPARSE_DATA_BUFFER in the documentation of the Windows drivers.)
struct LinkTarget
{
    /// A junction leads to a folder of this machine; otherwise the link is symbolic.
    bool isJunction = false;
    /// The path as the system follows it.
    CString path;
    /// The path as it is shown to people, and as the call that creates symbolic links takes it.
    CString shownPath;
};

/// The target in the data of a reparse point; nothing when it is not a link or is damaged. Exported only for its tests.
[[nodiscard]] VYR_PLATFORM_API std::optional<LinkTarget> ParseReparsePoint(std::span<const std::byte> data);

/// The data of the reparse point at `path`; empty, with the last error set, where there is none.
[[nodiscard]] std::vector<std::byte> ReadReparsePoint(const LongPath& path);

/// Creates at `destination`, which must be free, a link like that at `source`.
/// @return 0, or the error code; nothing was created then.
[[nodiscard]] std::uint32_t CopyReparsePoint(const LongPath& source, const LongPath& destination);

} // namespace VyrPlatform
