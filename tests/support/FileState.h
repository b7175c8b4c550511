// For tests: what a file has besides its content, set by the system's own means.
#pragma once

#include <VyrPlatform/CString.h>
#include <VyrPlatform/FileTimes.h>

namespace VyrTests {

/// Sets the times of the file or folder at `path`; a test failure when the system refuses.
void SetFileTimes(const CString& path, VyrPlatform::FileTicks modified, VyrPlatform::FileTicks accessed);

/// Makes the file or folder at `path` read-only or writable.
void SetReadOnly(const CString& path, bool isReadOnly);

/// Gives the file at `path` the mark of a download, as the system's own programs do.
void MarkAsDownloaded(const CString& path);
[[nodiscard]] bool IsMarkedAsDownloaded(const CString& path);

} // namespace VyrTests
