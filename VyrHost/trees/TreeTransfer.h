/// @file
/// The copying or moving of a tree.
#pragma once

#include <VyrHost/trees/Tree.h>
#include <VyrHost/trees/TreeProblem.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <functional>
#include <list>

namespace VyrHost {

enum class TreeAction : std::uint8_t
{
    Copy,
    Move
};

/// The folders that were made, each before those in it.
using TreeRecords = std::list<VyrLibraryFuncs::NameFuncs::RENAMEITEM>;

/// Is called with the count of folders that were made, from time to time.
using TreeProgress = std::function<void(std::size_t)>;

/// Makes the root folder at the full path `target` unless it is there, and has the library copy or move `tree` into it.
/// It cannot be stopped on the way.
/// @param records  gets the folders that were made.
/// @return 0, or why the root could not be made: the system's error code; nothing was done then. Whether the rest went
///         well only a look at the target tells (FinishTree).
[[nodiscard]] std::uint32_t TransferTree(const Tree& tree, const CString& target, TreeAction action,
                                         TreeRecords& records, const TreeProgress& progress);

} // namespace VyrHost
