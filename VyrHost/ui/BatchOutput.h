/// @file
/// What is said of batches that are listed, undone or recovered.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/ui/OutputBuffer.h>
#include <VyrHost/ui/RecordTable.h>

#include <string>
#include <vector>

namespace VyrHost::Ui {

/// Such as "batch 2 of 2024/05/06 07:08:09, rename in /home/eva/pictures, 3 entries".
[[nodiscard]] CString NameOf(const Batch::BatchInformation& batch);

/// The columns of a list of batches: `number`, `started`, `command`, `folder` (both where they are known), `state`,
/// `undo` (the number of its last undo), `entries`, `renamed` (where it is known), `stopped`, `from`, `to` (those of
/// its first entry), `problem`, and `summary`, what has become of it and of how many of its entries.
[[nodiscard]] std::vector<RecordColumn> BatchColumns();
/// A list of `batches`, which must outlive it.
[[nodiscard]] RecordTable TableOfBatches(const std::vector<Batch::BatchInformation>& batches);

/// A row for each entry: where it was, where it is now, and what there is to say.
void WriteEntryTable(OutputBuffer& output, const std::vector<Batch::BatchEntry>& entries, Batch::Direction direction);
/// A JSON object for each: `from`, `to`, `status`, `reason`, `changed`; for a change that is no rename also its `kind`
/// and `path`, with `from` and `to` being what was there and what is there now.
void WriteEntryJson(OutputBuffer& output, const std::vector<Batch::BatchEntry>& entries, Batch::Direction direction);

/// Such as "5 entries: 4 renamed, 1 refused." with a line end.
[[nodiscard]] std::string SummaryOf(const Batch::BatchSummary& summary);

} // namespace VyrHost::Ui
