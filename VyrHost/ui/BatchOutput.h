/// @file
/// What is said of batches that are listed, undone or recovered.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/ui/OutputBuffer.h>

#include <string>
#include <vector>

namespace VyrHost::Ui {

/// Which way the renames of a batch went.
enum class BatchDirection : std::uint8_t
{
    /// From the names before it to those after it.
    Forward,
    Back
};

/// A line for each batch: its number, when it began, what has become of it, of how many of its entries, and its first
/// rename.
void WriteBatchLines(OutputBuffer& output, const std::vector<Batch::BatchInformation>& batches);
/// A JSON object for each: `number`, `started`, `state`, `entries`, `renamed` (where it is known), `stopped`, `from`,
/// `to` (those of its first entry), `problem`.
void WriteBatchJson(OutputBuffer& output, const std::vector<Batch::BatchInformation>& batches);

/// A row for each entry: where it was, where it is now, and what there is to say.
void WriteEntryTable(OutputBuffer& output, const std::vector<Batch::BatchEntry>& entries, BatchDirection direction);
/// A JSON object for each: `from`, `to`, `status`, `reason`, `changed`.
void WriteEntryJson(OutputBuffer& output, const std::vector<Batch::BatchEntry>& entries, BatchDirection direction);

/// Such as "5 entries: 4 renamed, 1 refused." with a line end.
[[nodiscard]] std::string SummaryOf(const Batch::BatchSummary& summary);

} // namespace VyrHost::Ui
