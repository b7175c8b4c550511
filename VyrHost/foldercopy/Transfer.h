/// @file
/// The copying or moving of a tree: what may go wrong, the work, and the comparison with what has come to the target.
#pragma once

#include <VyrHost/foldercopy/FolderSnapshot.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <functional>
#include <list>
#include <vector>

namespace VyrHost::FolderCopy {

enum class TransferFault : std::uint8_t
{
    // Found beforehand; nothing is touched then.

    /// Something stands where it would go.
    TargetExists,
    /// The target takes its name and that of another entry for one.
    TwoNamesInOne,
    /// The folder where it would go cannot be looked through.
    TargetNotRead,

    // Found afterwards.

    /// The system refused it.
    System,
    /// The folder could not be read, so that what is in it is not known.
    NotRead,
    /// It is a pipe or a device.
    NoContent,
    /// Its folder could not be made.
    noFolder,
    /// What stands at the target is not what stood at the source.
    Differs,
    /// It is at the target, and at the source, too, where it could not be removed.
    StillAtSource,
    /// The folder is not empty, though all that was known of is gone.
    NotEmpty,
    /// The times, permissions or attributes of the folder could not be set.
    FolderNotSet
};

struct TransferProblem
{
    /// From the root of the tree on; empty for the root itself.
    CString path;
    TransferFault fault = TransferFault::System;
    /// The system's error code; 0 where none tells more.
    std::uint32_t error = 0;
};

/// Why, for people.
[[nodiscard]] CString ReasonOf(const TransferProblem& problem);

using TransferProblems = std::vector<TransferProblem>;

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

/// What cannot go well, as the tree alone tells: folders that cannot be read, and, where files are copied, what has no
/// content to copy. A move copies when the full path `target` is on another file system.
[[nodiscard]] TransferProblems ForeseeProblems(const FolderSnapshot& tree, const CString& target,
                                               TransferAction action);

/// Looks at every entry of `tree` at the full path `target`: it must be there, of the same kind and size, a link with
/// the same text; after a move nothing may be left at the source. What is missing is tried a second time, which tells
/// why it fails.
/// @param records  gets the folders that are made only now.
/// @return every entry that is not where it should be.
[[nodiscard]] TransferProblems FinishTransfer(const FolderSnapshot& tree, const CString& target, TransferAction action,
                                              TransferRecords& records);

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
