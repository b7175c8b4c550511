/// @file
/// A snapshot of a folder and all its entries, taken before it is copied or moved.
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
    /// A symbolic link to anything: links are not followed.
    Link,
    /// A pipe or a device: it has no content.
    Other
};

struct SnapshotEntry
{
    CString name;
    SnapshotKind kind = SnapshotKind::File;
    /// For a folder: its index in FolderSnapshot::folders.
    std::size_t folder = 0;
    /// In bytes; for a link the size of its target file, -1 where there is none.
    std::int64_t size = 0;
    /// For a link: its target, as stored in the link.
    CString linkTarget;
};

struct SnapshotFolder
{
    /// Relative to the root; empty for the root itself.
    CString path;
    VyrPlatform::FileTicks created = 0;
    VyrPlatform::FileTicks modified = 0;
    /// Nothing where they cannot be read.
    std::optional<VyrHostPlatform::FolderTraits> traits;
    /// The system's error code if not all entries could be read; else 0.
    std::uint32_t error = 0;
    /// Its entries are consecutive in FolderSnapshot::entries.
    std::size_t firstEntry = 0;
    std::size_t entryCount = 0;
};

struct FolderSnapshot
{
    /// Full path of the root folder.
    CString root;
    /// The root first, each folder before its subfolders.
    std::vector<SnapshotFolder> folders;
    /// All entries, including folders except the root.
    std::vector<SnapshotEntry> entries;
};

/// The full path of the folder that the entry at `fullPath` is in; a root is in itself.
[[nodiscard]] CString FolderOf(const CString& fullPath);

/// Takes a snapshot of the folder at the full path `root`, including hidden entries.
[[nodiscard]] FolderSnapshot TakeSnapshot(const CString& root);

[[nodiscard]] Model::TreeSize SizeOf(const FolderSnapshot& tree);

} // namespace VyrHost::FolderCopy
