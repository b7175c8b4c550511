/// @file
/// The entries that a call is about, in the order of the list.
#pragma once

#include <VyrHost/model/FolderSet.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <string_view>
#include <vector>

namespace VyrHost::Model {

/// A file or folder of the list. A million of them are kept, so each is a few words.
struct Entry
{
    InternedName name;
    std::uint32_t folder = 0;
    /// As the folder's listing tells it; Missing when the folder has no such name.
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::Missing;
};

/// A name cut as the rules see it.
struct SplitName
{
    CString name;
    /// With its dot; empty for a folder and a file without one.
    CString extension;
};

/// Cuts the name of `entry`, whose full path is `path`, as NameFuncs::GetFName and GetExtension do, without asking the
/// system what it is: the entry knows.
[[nodiscard]] SplitName Split(const CString& path, const Entry& entry);

struct EntryList
{
    FolderSet folders;
    std::vector<Entry> entries;

    /// Writes each entry's place down with its name.
    void NumberOwners();

    [[nodiscard]] CString PathOf(const Entry& entry) const
    {
        return CString::Join({folders[entry.folder].path, entry.name});
    }
};

} // namespace VyrHost::Model
