/// @file
/// The entries of a call, in order.
#pragma once

#include <VyrHost/model/FolderSet.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <string_view>
#include <vector>

namespace VyrHost::Model {

/// A file or folder of the list. Small, since there may be a million of them.
struct Entry
{
    InternedName name;
    std::uint32_t folder = 0;
    /// The kind in the folder's listing; Missing when the folder has no such name.
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::Missing;
};

/// A name and its extension, for the rules.
struct SplitName
{
    CString name;
    /// With its dot; empty for a folder and a file without one.
    CString extension;
};

/// Splits the name of `entry`, whose full path is `path`, as NameFuncs::GetFName and GetExtension do, but without
/// querying the system: the entry has its kind.
[[nodiscard]] SplitName Split(const CString& path, const Entry& entry);

struct EntryList
{
    FolderSet folders;
    std::vector<Entry> entries;

    /// Sets the owner of each entry's name.
    void NumberOwners();

    [[nodiscard]] CString PathOf(const Entry& entry) const
    {
        return CString::Join({folders[entry.folder].path, entry.name});
    }
};

} // namespace VyrHost::Model
