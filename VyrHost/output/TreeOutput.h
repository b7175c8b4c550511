/// @file
/// What is said of folders that are copied or moved.
#pragma once

#include <VyrHost/output/OutputBuffer.h>
#include <VyrHost/trees/TreeBatch.h>

#include <string>
#include <vector>

namespace VyrHost {

/// A row for each tree, and one below it for each entry that there is a problem with, by path.
void WriteTreeTable(OutputBuffer& output, const std::vector<TreeReport>& reports, TreeAction action);
/// A JSON object for each tree: `from`, `to`, `status`, `folders`, `files`, `bytes`; behind it one for each problem:
/// `from`, `to`, `status`, `reason`.
void WriteTreeJson(OutputBuffer& output, const std::vector<TreeReport>& reports, TreeAction action);
/// A line for each tree that is not done, and for each problem, safe to show.
[[nodiscard]] std::vector<std::string> ProblemLines(const std::vector<TreeReport>& reports, TreeAction action);

/// Such as "3 folders: 2 copied, 1 incomplete." with a line end.
[[nodiscard]] std::string SummaryOf(const std::vector<TreeReport>& reports, TreeAction action);

} // namespace VyrHost
