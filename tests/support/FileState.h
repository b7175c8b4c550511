// For tests: the read-only state and the download mark of a file, set by the system's own means.
#pragma once

#include <VyrPlatform/text/CString.h>

namespace VyrTests {

/// Makes the file or folder at `path` read-only or writable.
void SetReadOnly(const CString& path, bool isReadOnly);

/// Gives the file at `path` the mark of a download, as the system's own programs do.
void MarkAsDownloaded(const CString& path);
[[nodiscard]] bool IsMarkedAsDownloaded(const CString& path);

} // namespace VyrTests
