/// @file
/// The file of a report, which is there whole or not at all.
#pragma once

#include <VyrHost/reports/RecordReport.h>

namespace VyrHost::Reports {

/// Refuses, before anything is done, a report that could not be written: one that exists already, unless it may be
/// replaced, or a folder.
/// @throws UsageError
void CheckReportFile(const CString& path, bool mayReplace);

/// Writes a report into a file beside `path`, which then gets that name. A former report is kept until the new one has
/// its place.
/// @param content  gives the page, piece by piece.
/// @return 0, else the system's error code; what stood at `path` is unchanged then.
[[nodiscard]] std::uint32_t WriteReportFile(const CString& path, bool mayReplace,
                                            const std::function<void(const TakePiece& take)>& content);

} // namespace VyrHost::Reports
