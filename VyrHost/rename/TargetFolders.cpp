// Finds or claims the folders that entries move into.
#include <VyrHost/rename/TargetFolders.h>

#include <VyrHost/rename/NameValidator.h>
#include <VyrPlatform/files/FileSystem.h>

#include <vector>

namespace VyrHost::Rename {

using VyrHostPlatform::NameFault;
using VyrPlatform::FileSystem::Kind;

TargetFolders::Target TargetFolders::Open(const CString& path, const CString& shown)
{
    // The folders that are not there yet, the innermost first.
    std::vector<std::uint32_t> missing;
    std::uint32_t number = m_folders.Open(path, shown);
    std::optional<Target> target = Find(number);
    while (!target) {
        missing.push_back(number);
        number = m_folders.Open(m_folders[m_folders[number].parent].path, {});
        target = Find(number);
    }
    for (; !missing.empty(); missing.pop_back()) {
        target = Claim(missing.back(), *target);
        m_targets.emplace(missing.back(), *target);
    }
    return *target;
}

/// What is known of a folder; nothing for one that has to be claimed.
std::optional<TargetFolders::Target> TargetFolders::Find(std::uint32_t number) const
{
    const Model::Folder& folder = m_folders[number];
    if (folder.exists)
        return Target{.folder = number, .device = folder.device};
    if (const auto known = m_targets.find(number); known != m_targets.end())
        return known->second;
    if (VyrPlatform::FileSystem::IsFolder(folder.path))
        return Target{.folder = number, .reason = Reason::FolderNotRead};
    if (folder.parent == Model::NoFolder || ValidateName(folder.name, {}).reason != Reason::None)
        return Target{.folder = number, .reason = Reason::BadFolder};
    return std::nullopt;
}

/// Takes the name of a folder that is not there yet in the folder `parent`.
TargetFolders::Target TargetFolders::Claim(std::uint32_t number, const Target& parent)
{
    if (parent.reason != Reason::None)
        return {.folder = number, .reason = parent.reason};
    Model::Folder& folder = m_folders[number];
    Model::NameTable& siblings = m_folders[parent.folder].names;
    folder.names.SetFolding(siblings.Folding());
    Model::NameRecord& record = siblings.Add(folder.name);
    if (record.kind != Kind::Missing)
        return {.folder = number, .reason = Reason::BadFolder};
    const NameFault warning = ValidateName(folder.name, {}).warning;
    // Its file system may take the name for that of a folder which is claimed already.
    const Target target{
        .folder = number, .warning = warning == NameFault::None ? parent.warning : warning, .device = parent.device};
    const auto [claimed, isNew] = m_claimed.try_emplace(&record, target);
    if (isNew) {
        record.holder = Model::NewFolder;
        folder.parent = parent.folder;
        folder.isNew = true;
    }
    return claimed->second;
}

} // namespace VyrHost::Rename
