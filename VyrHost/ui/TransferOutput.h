/// @file
/// What is said of folders that are copied or moved.
#pragma once

#include <VyrHost/foldercopy/TransferBatch.h>
#include <VyrHost/ui/OutputBuffer.h>

#include <string>
#include <vector>

namespace VyrHost::Ui {

/// A row for each tree, and one below it for each entry that there is a problem with, by path.
void WriteTransferTable(OutputBuffer& output, const std::vector<FolderCopy::TransferReport>& reports,
                        FolderCopy::TransferAction action);
/// A JSON object for each tree: `from`, `to`, `status`, `folders`, `files`, `bytes`; behind it one for each problem:
/// `from`, `to`, `status`, `reason`.
void WriteTransferJson(OutputBuffer& output, const std::vector<FolderCopy::TransferReport>& reports,
                       FolderCopy::TransferAction action);
/// A line for each tree that is not done, and for each problem, safe to show.
[[nodiscard]] std::vector<std::string> ProblemLines(const std::vector<FolderCopy::TransferReport>& reports,
                                                    FolderCopy::TransferAction action);

/// Such as "3 folders: 2 copied, 1 incomplete." with a line end.
[[nodiscard]] std::string SummaryOf(const std::vector<FolderCopy::TransferReport>& reports,
                                    FolderCopy::TransferAction action);

} // namespace VyrHost::Ui
