/// @file
/// What is in the way of a tree at its target.
#pragma once

#include <VyrHost/foldercopy/FolderSnapshot.h>
#include <VyrHost/foldercopy/Transfer.h>

namespace VyrHost::FolderCopy {

/// What the target of a tree holds already.
struct TargetCheck
{
    /// What would be overwritten, or would overwrite each other; to be refused as a whole.
    TransferProblems clashes;
    /// How many folders will be made, the root included.
    std::size_t newFolders = 0;
};

/// Whether a check may make folders at the target, and remove them again.
enum class Trial : bool
{
    No,
    Allowed
};

/// Holds `tree` against what stands at the full path `target`. A folder there takes up the entries of the same folder
/// of the tree; anything else that stands where an entry would go is in its way, a link to a folder, too: nothing goes
/// through links. Names are compared as the target's file system compares them.
/// @param trial  some file systems do not tell how they compare. Where it is allowed, names that might be one there are
///        tried, without which the one might overwrite the other.
[[nodiscard]] TargetCheck CheckTarget(const FolderSnapshot& tree, const CString& target, Trial trial);

} // namespace VyrHost::FolderCopy
