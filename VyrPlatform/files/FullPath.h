/// @file
/// Paths that do not depend on the current folder.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrPlatform {

/// `path` as a full path from the current folder, without "." steps, doubled separators and separators at its end (that
/// of a root is kept). The disk is not read: on Linux ".." steps are kept, since links decide where they lead; on
/// Windows they are resolved in the text, as the system itself does. An empty path stays empty, and on Linux a relative
/// one stays as it is where the current folder was removed.
///
///     In the folder /home/me, "a//./b/" gives "/home/me/a/b".
[[nodiscard]] VYR_PLATFORM_API CString GetFullPath(const CString& path);

/// The full path, without links and ".." steps, of the entry at `path`; empty when there is none, or the system cannot
/// tell.
[[nodiscard]] VYR_PLATFORM_API CString GetRealPath(const CString& path);

} // namespace VyrPlatform
