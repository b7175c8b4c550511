/// @file
/// A snapshot of a folder and all that is in it, taken before it is copied or moved.
#pragma once

#include <VyrHost/model/Result.h>
#include <VyrHostPlatform/FolderTraits.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace VyrHost::FolderCopy {

enum class SnapshotKind : std::uint8_t
{
    Folder,
    File,
    /// A symbolic link, wherever it leads: no link is followed.
    Link,
    /// A pipe or a device: it has no content.
    Other
};

struct SnapshotEntry
{
    CString name;
    SnapshotKind kind = SnapshotKind::File;
    /// Of a folder: its place in FolderSnapshot::folders.
    std::size_t folder = 0;
    /// In bytes; of a link that of the file it leads to, -1 where it leads to none.
    std::int64_t size = 0;
    /// Of a link: its target, as stored in the link.
    CString linkTarget;
};

struct SnapshotFolder
{
    /// Relative to the root; empty for the root itself.
    CString path;
    VyrPlatform::FileTicks created = 0;
    VyrPlatform::FileTicks modified = 0;
    /// Nothing where they may not be read.
    std::optional<VyrHostPlatform::FolderTraits> traits;
    /// The system's error code if not all entries could be read; else 0.
    std::uint32_t error = 0;
    /// Its entries stand together in FolderSnapshot::entries.
    std::size_t firstEntry = 0;
    std::size_t entryCount = 0;
};

struct FolderSnapshot
{
    /// Full path of the root folder.
    CString root;
    /// The root first, each folder before those in it.
    std::vector<SnapshotFolder> folders;
    /// Folders but the root, too.
    std::vector<SnapshotEntry> entries;
};

/// Takes a snapshot of the folder at the full path `root`, hidden entries included.
[[nodiscard]] FolderSnapshot TakeSnapshot(const CString& root);

[[nodiscard]] Model::TreeSize SizeOf(const FolderSnapshot& tree);

} // namespace VyrHost::FolderCopy
