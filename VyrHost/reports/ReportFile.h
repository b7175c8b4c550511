/// @file
/// Writes the file of a report, which exists only when it is complete.
#pragma once

#include <VyrHost/reports/RecordReport.h>

namespace VyrHost::Reports {

/// Refuses, before anything is done, a path that is not a regular file (or a link to one), an existing file unless it
/// may be replaced, and a missing file without a name or in a missing folder.
/// @throws UsageError
void CheckReportFile(const CString& path, bool mayReplace);

/// Writes a report into a file beside `path`, and then renames it to `path`. A former report is kept until then; its
/// permissions are those of the new one. Where `path` is a link, its target is replaced.
/// @param content  writes the page, piece by piece.
/// @return 0, else the system's error code; the file at `path` is then unchanged.
[[nodiscard]] std::uint32_t WriteReportFile(const CString& path, bool mayReplace,
                                            const std::function<void(const TakePiece& take)>& content);

} // namespace VyrHost::Reports
