/// @file
/// Copies or moves a tree, compares it with the target, and lists problems.
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
    // Found beforehand; then nothing is changed.

    /// There is an entry at its new path.
    TargetExists,
    /// At the target its name equals that of another entry.
    TwoNamesInOne,
    /// The folder of its new path cannot be searched.
    TargetNotRead,
    /// The user may not add names to the folder of its new path.
    TargetLocked,
    /// The user may not remove names from this folder.
    SourceLocked,
    /// The user may not remove the tree's name from the folder that it is in.
    RootLocked,
    /// It is another user's in a sticky folder, where only its owner may move it.
    NotOwnEntry,

    // Found afterwards.

    /// The system refused it.
    System,
    /// The folder could not be read, so its entries are unknown.
    NotRead,
    /// The target may have too little space for the tree and those before it. Found beforehand, but no reason to
    /// refuse: files may take less there.
    LittleSpace,
    /// It is a pipe or a device.
    NoContent,
    /// Its folder could not be created.
    NoFolder,
    /// The entry at the target differs from that at the source.
    Differs,
    /// It is at the target, and still at the source, where it could not be removed.
    StillAtSource,
    /// The folder is not empty, though all known entries are gone.
    NotEmpty,
    /// The times, permissions or attributes of the folder could not be set.
    FolderNotSet
};

struct TransferProblem
{
    /// Relative to the root of the tree; empty for the root itself.
    CString path;
    TransferFault fault = TransferFault::System;
    /// The system's error code; 0 where there is none.
    std::uint32_t error = 0;
};

/// The reason in words.
[[nodiscard]] CString ReasonOf(const TransferProblem& problem);

using TransferProblems = std::vector<TransferProblem>;

enum class TransferAction : std::uint8_t
{
    Copy,
    Move
};

/// The created folders, each before its subfolders.
using TransferRecords = std::list<VyrLibraryFuncs::NameFuncs::RENAMEITEM>;

/// Called now and then with the number of folders created so far.
using TransferProgress = std::function<void(std::size_t)>;

/// Creates the root folder at the full path `target` unless it exists, and calls the library to copy or move `tree`
/// into it. It cannot be stopped.
/// @param records  gets the created folders.
/// @return 0, or the system's error code when the root could not be created; then nothing was done. Only FinishTransfer
/// tells whether the rest succeeded.
[[nodiscard]] std::uint32_t TransferFolder(const FolderSnapshot& tree, const CString& target, TransferAction action,
                                           TransferRecords& records, const TransferProgress& progress);

/// Whether the files of `tree` are copied: a move copies when the full path `target` is on another file system.
[[nodiscard]] bool CopiesFiles(const FolderSnapshot& tree, const CString& target, TransferAction action);

/// Problems that the tree alone shows: folders that cannot be read, and, where files are copied, entries without
/// content to copy.
[[nodiscard]] TransferProblems PredictProblems(const FolderSnapshot& tree, const CString& target,
                                               TransferAction action);

/// Checks every entry of `tree` at the full path `target`: it must exist, with the same kind and size, a link with the
/// same text; after a move nothing may be left at the source. Missing entries are tried a second time, which gives the
/// reason of a failure.
/// @param records  gets the folders that are created by the second attempts.
/// @return every entry with a problem.
[[nodiscard]] TransferProblems FinishTransfer(const FolderSnapshot& tree, const CString& target, TransferAction action,
                                              TransferRecords& records);

struct CreatedFoldersResult
{
    /// The folders whose last-write time, permissions or attributes could not be set.
    TransferProblems problems;
    /// The system's error code when a creation time could not be set (the last one of several); else 0. Many file
    /// systems keep no creation times.
    std::uint32_t creationError = 0;
};

/// Sets the times and traits of each folder of `records` to those of its source folder, children before their parents.
/// The exact times of `tree` are used where they equal the recorded ones, else those of the record, which are whole
/// seconds.
[[nodiscard]] CreatedFoldersResult CompleteFolders(const FolderSnapshot& tree, const TransferRecords& records);

} // namespace VyrHost::FolderCopy
