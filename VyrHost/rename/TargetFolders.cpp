// Finds or claims the folders that entries move into.
#include <VyrHost/rename/TargetFolders.h>

#include <VyrHost/rename/NameValidator.h>
#include <VyrPlatform/files/FileSystem.h>

namespace VyrHost::Rename {

using VyrHostPlatform::NameFault;
using VyrPlatform::FileSystem::Kind;

TargetFolders::Target TargetFolders::Open(const CString& path, const CString& shown)
{
    const std::uint32_t number = m_folders.Open(path, shown);
    if (m_folders[number].exists)
        return {.folder = number, .device = m_folders[number].device};
    const auto known = m_targets.find(number);
    if (known != m_targets.end())
        return known->second;
    const Target target = Claim(number);
    m_targets.emplace(number, target);
    return target;
}

/// Takes the name of a folder that is not there yet, and of those above it.
TargetFolders::Target TargetFolders::Claim(std::uint32_t number)
{
    Model::Folder& folder = m_folders[number];
    if (VyrPlatform::FileSystem::IsFolder(folder.path))
        return {.folder = number, .reason = Model::Reason::FolderNotRead};
    const NameValidity validity = ValidateName(folder.name, {});
    if (folder.parent == Model::NoFolder || validity.reason != Model::Reason::None)
        return {.folder = number, .reason = Model::Reason::BadFolder};
    const Target parent = Open(m_folders[folder.parent].path, {});
    if (parent.reason != Model::Reason::None)
        return {.folder = number, .reason = parent.reason};
    Model::NameRecord& record = m_folders[parent.folder].names.Add(folder.name);
    if (record.kind != Kind::Missing)
        return {.folder = number, .reason = Model::Reason::BadFolder};
    // Its file system may take the name for that of a folder which is claimed already.
    const Target target{.folder = number,
                        .warning = validity.warning == NameFault::None ? parent.warning : validity.warning,
                        .device = parent.device};
    const auto [claimed, isNew] = m_claimed.try_emplace(&record, target);
    if (isNew) {
        record.holder = Model::NewFolder;
        folder.parent = parent.folder;
        folder.isNew = true;
    }
    return claimed->second;
}

} // namespace VyrHost::Rename
