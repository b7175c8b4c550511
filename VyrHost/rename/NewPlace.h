/// @file
/// Checks new names, and opens destination folders.
#pragma once

#include <VyrHost/model/FolderSet.h>
#include <VyrHost/rename/Decision.h>
#include <VyrHost/rename/NamesAfter.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace VyrHost::Rename {

struct NameValidity
{
    Reason reason = Reason::None;
    /// A fault that the old name did not have and that this system allows.
    VyrHostPlatform::NameFault warning = VyrHostPlatform::NameFault::None;
};

[[nodiscard]] NameValidity ValidateName(std::u16string_view newName, std::u16string_view oldName);

/// Opens destination folders. Missing ones become new folders of the batch, and reserve their names.
class TargetFolders
{
public:
    TargetFolders(Model::FolderSet& folders, NamesAfter& after) : m_folders(folders), m_after(after) {}

    struct Target
    {
        std::uint32_t folder = 0;
        /// Why nothing can be moved there.
        Reason reason = Reason::None;
        /// The fault of a new folder's name on Windows.
        VyrHostPlatform::NameFault warning = VyrHostPlatform::NameFault::None;
        /// The file system of the folder, or of its nearest existing parent.
        std::optional<std::uint64_t> device = std::nullopt;
    };

    /// Opens the folder `path` (absolute, with a separator at its end).
    Target Open(const CString& path, const CString& shown);

private:
    [[nodiscard]] std::optional<Target> Find(std::uint32_t number) const;
    [[nodiscard]] Target Reserve(std::uint32_t number, const Target& parent);

    Model::FolderSet& m_folders;
    NamesAfter& m_after;
    /// The target for each folder.
    std::unordered_map<std::uint32_t, Target> m_targets;
    /// The folders to be created, by their parent and the index of their name's record there.
    std::map<std::pair<std::uint32_t, std::size_t>, Target> m_reserved;
};

} // namespace VyrHost::Rename
