/// @file
/// What is said of folders that are copied or moved.
#pragma once

#include <VyrHost/output/OutputBuffer.h>
#include <VyrHost/trees/Tree.h>
#include <VyrHost/trees/TreeProblem.h>
#include <VyrHost/trees/TreeTasks.h>
#include <VyrHost/trees/TreeTransfer.h>

#include <string>
#include <vector>

namespace VyrHost {

/// What becomes of a tree.
enum class TreeStatus : std::uint8_t
{
    /// It is copied or moved, or can be.
    Done,
    /// Likewise, but not all that is in it.
    Incomplete,
    /// Something is in its way.
    Refused,
    /// Nothing of it, since its root could not be made.
    Failed,
    /// Nothing was begun.
    NotReached
};

struct TreeReport
{
    TreeTask task;
    TreeStatus status = TreeStatus::Done;
    TreeSize size;
    TreeProblems problems;
};

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
