/// @file
/// Descriptions of batches, and the list of them.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/ui/RecordTable.h>

#include <vector>

namespace VyrHost::Ui {

/// Such as "batch 2 of 2024-05-06 07:08:09, rename in /home/eva/pictures, 3 entries"; the date in the form of the
/// locale.
[[nodiscard]] CString NameOf(const Batch::BatchInformation& batch);

/// The columns of a list of batches. docs/json.md describes them.
[[nodiscard]] std::vector<RecordColumn> BatchColumns();
/// A list of `batches`, which must outlive it.
[[nodiscard]] RecordTable TableOfBatches(const std::vector<Batch::BatchInformation>& batches);

} // namespace VyrHost::Ui
