/// @file
/// The copying or moving of a tree.
#pragma once

#include <VyrHost/foldercopy/FolderSnapshot.h>
#include <VyrHost/foldercopy/TransferProblem.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <functional>
#include <list>

namespace VyrHost::FolderCopy {

enum class TransferAction : std::uint8_t
{
    Copy,
    Move
};

/// The folders that were made, each before those in it.
using TransferRecords = std::list<VyrLibraryFuncs::NameFuncs::RENAMEITEM>;

/// Is called with the count of folders that were made, from time to time.
using TransferProgress = std::function<void(std::size_t)>;

/// Makes the root folder at the full path `target` unless it is there, and has the library copy or move `tree` into it.
/// It cannot be stopped on the way.
/// @param records  gets the folders that were made.
/// @return 0, or why the root could not be made: the system's error code; nothing was done then. Whether the rest went
///         well only a look at the target tells (FinishTransfer).
[[nodiscard]] std::uint32_t TransferFolder(const FolderSnapshot& tree, const CString& target, TransferAction action,
                                           TransferRecords& records, const TransferProgress& progress);

} // namespace VyrHost::FolderCopy
