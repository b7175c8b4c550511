/// @file
/// Identifies a file independently of its name, and tells whether it has changed.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrPlatform {

/// A file keeps its identity when it is renamed. Two names with the same identity are hard links to one file.
struct FileIdentity
{
    /// The file system (Linux: the device number; Windows: the volume's serial number). It may change when the file
    /// system is mounted again.
    std::uint64_t device = 0;
    /// The file in it (Linux: the inode number; Windows: the file index).
    std::uint64_t number = 0;

    friend bool operator==(const FileIdentity&, const FileIdentity&) noexcept = default;
};

/// The result of one query of an entry itself: a link is not followed.
struct FileState
{
    /// File, Folder, or Other (a symbolic link, a device); Missing when the query failed.
    FileSystem::Kind kind = FileSystem::Kind::Missing;
    FileIdentity identity;
    /// In bytes; 0 unless it is a file.
    std::int64_t size = 0;
    FileTicks modified = 0;
    /// The number of names of the file.
    std::uint32_t links = 0;
    /// The system's error code when the kind is Missing, else 0.
    std::uint32_t error = 0;
};

/// The state of the entry at `path`.
[[nodiscard]] VYR_PLATFORM_API FileState LookAtFile(const CString& path);

} // namespace VyrPlatform
