/// @file
/// The source and the target of each folder.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <vector>

namespace VyrHost::FolderCopy {

/// A folder that is to be copied or moved.
struct TransferTask
{
    /// Full path of the folder.
    CString source;
    /// Full path that it gets, its name included.
    CString target;
    /// Both as the user wrote them.
    CString shownSource;
    CString shownTarget;
};

/// Where the folders `sources` go. Into the folder `destination` under their own names where that is there; else the
/// one source gets `destination` for its new path, whose folder must be there.
///
/// Folders are compared by identity, so that links and other spellings of a path make no difference.
/// @throws UsageError when a source is no folder, is named twice, or stands inside another one; when `destination` is
/// no folder that it could be, stands inside a source, or makes a source go onto itself or onto a folder that it stands
/// in; when two sources would get one path.
[[nodiscard]] std::vector<TransferTask> MakeTransferTasks(const std::vector<CString>& sources,
                                                          const CString& destination);

} // namespace VyrHost::FolderCopy
