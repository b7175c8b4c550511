/// @file
/// A path that does not depend on the current folder.
#pragma once

#include <VyrPlatform/text/CString.h>

namespace VyrHostPlatform {

/// `path` as a full path: what it names from the current folder, without "." steps, doubled separators and separators
/// at its end (that of a root stays). Nothing is looked up: on Linux ".." steps stay, since what they lead to depends
/// on links; on Windows they are resolved in the text, as the system itself does. An empty path stays empty.
[[nodiscard]] CString GetFullPath(const CString& path);

/// The full path, without any link and ".." step, of what stands at `path`; empty when nothing does, or the system
/// cannot tell.
[[nodiscard]] CString GetRealPath(const CString& path);

} // namespace VyrHostPlatform
