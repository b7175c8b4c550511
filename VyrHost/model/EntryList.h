/// @file
/// The entries of a call, in order, and those of them that must stay as they are.
#pragma once

#include <VyrHost/model/FolderSet.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <functional>
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

/// The reason why an entry must not be renamed or moved, whatever the rules say; empty for all other entries. Takes its
/// folder's path (with a separator at its end; empty if the name is a full path), its name and its kind.
using StayReason = std::function<std::u16string_view(const CString& folder, std::u16string_view name,
                                                     VyrPlatform::FileSystem::Kind kind)>;

} // namespace VyrHost::Model
