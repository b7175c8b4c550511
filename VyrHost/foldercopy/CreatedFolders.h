/// @file
/// What folders that were made for others get of them.
#pragma once

#include <VyrHost/foldercopy/Transfer.h>

namespace VyrHost::FolderCopy {

struct CreatedFoldersResult
{
    /// The folders whose last-write time, permissions or attributes could not be set.
    TransferProblems problems;
    /// Why a creation time could not be set, the last reason where there are several: the system's error code; else 0.
    /// Many file systems keep none.
    std::uint32_t creationError = 0;
};

/// Gives each folder of `records` the times and traits of the one that it was made for, children before their parents.
/// The times are those of `tree`, which are exact, where they are still the recorded ones, else those of the record,
/// which are whole seconds.
[[nodiscard]] CreatedFoldersResult CompleteFolders(const FolderSnapshot& tree, const TransferRecords& records);

} // namespace VyrHost::FolderCopy
