/// @file
/// The comparison of a tree with what has come to its target.
#pragma once

#include <VyrHost/foldercopy/Transfer.h>

namespace VyrHost::FolderCopy {

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

} // namespace VyrHost::FolderCopy
