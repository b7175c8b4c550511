/// @file
/// Finds what keeps a tree from its target.
#pragma once

#include <VyrHost/foldercopy/FolderSnapshot.h>
#include <VyrHost/foldercopy/Transfer.h>

namespace VyrHost::FolderCopy {

/// The result of the check of a target.
struct TargetCheck
{
    /// Entries that would be overwritten, or would overwrite each other, and folders that the user may not add to; any
    /// of them refuses the whole tree.
    TransferProblems conflicts;
    /// The number of folders to be created, including the root.
    std::size_t newFolders = 0;
};

/// Whether a check may create folders at the target, and remove them again.
enum class Trial : bool
{
    No,
    Allowed
};

/// Compares `tree` with the entries at the full path `target`. An existing folder is merged with the same folder of the
/// tree. Any other entry where one of the tree would go is a conflict, also a link to a folder: nothing goes through
/// links. Names are compared as the target's file system does.
/// @param trial  some file systems do not tell how they compare names. If allowed, names that might be equal there are
/// tried, since one could overwrite the other.
[[nodiscard]] TargetCheck CheckTarget(const FolderSnapshot& tree, const CString& target, Trial trial);

/// Finds what the user may not move away from `tree`: the entries of folders without permission to remove names,
/// reported by these folders, and other users' entries of sticky folders. Any of them refuses the whole tree.
[[nodiscard]] TransferProblems CheckLeaving(const FolderSnapshot& tree);

} // namespace VyrHost::FolderCopy
