/// @file
/// The results of renames, as a list for a page.
#pragma once

#include <VyrHost/model/Result.h>
#include <VyrHost/ui/RecordTable.h>

namespace VyrHost::Reports {

/// A list of `results`, which must outlive it: the old name, the new one, the folder, the status and the reason. A new
/// name in another folder includes its folder.
/// @param isPreview  nothing was renamed, so that the files have their old names.
[[nodiscard]] Ui::RecordTable TableOfResults(const Model::Results& results, bool isPreview);

} // namespace VyrHost::Reports
