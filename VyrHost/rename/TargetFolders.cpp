// Finds or claims the folders that entries move into.
#include <VyrHost/rename/TargetFolders.h>

#include <VyrHost/rename/NameValidator.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <unordered_set>

namespace VyrHost::Rename {

namespace {

using VyrHostPlatform::NameFault;
using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileSystem::Kind;

CString WithoutSeparator(const CString& folder)
{
    return folder.Left(folder.GetLength() - 1);
}

void AppendMissing(Model::EntryList& list, std::uint32_t number, std::unordered_set<std::uint32_t>& known,
                   std::vector<CString>& missing)
{
    const Model::Folder& folder = list.folders[number];
    if (folder.exists || !known.insert(number).second)
        return;
    const CString path = WithoutSeparator(folder.path);
    AppendMissing(list, list.folders.Open(FileUtils::GetSplitDirPath(path), {}), known, missing);
    missing.push_back(path);
}

} // namespace

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
    const Model::Folder& folder = m_folders[number];
    const CString path = WithoutSeparator(folder.path);
    const CString above = FileUtils::GetSplitDirPath(path);
    const CString name = path.Mid(above.GetLength());
    if (VyrPlatform::FileSystem::IsFolder(folder.path))
        return {.folder = number, .reason = Model::Reason::FolderNotRead};
    const NameValidity validity = ValidateName(name, {});
    if (name.IsEmpty() || validity.reason != Model::Reason::None)
        return {.folder = number, .reason = Model::Reason::BadFolder};
    const Target parent = Open(above, {});
    if (parent.reason != Model::Reason::None)
        return {.folder = number, .reason = parent.reason};
    Model::NameRecord& record = m_folders[parent.folder].names.Add(m_folders.Intern(name));
    if (record.kind != Kind::Missing)
        return {.folder = number, .reason = Model::Reason::BadFolder};
    record.holder = Model::NewFolder;
    return {.folder = number,
            .warning = validity.warning == NameFault::None ? parent.warning : validity.warning,
            .device = parent.device};
}

std::vector<CString> FoldersToMake(Model::EntryList& list, const std::vector<Model::Decision>& decisions)
{
    std::vector<CString> missing;
    std::unordered_set<std::uint32_t> known;
    for (const Model::Decision& decision : decisions)
        if (decision.IsRename())
            AppendMissing(list, decision.folder, known, missing);
    return missing;
}

} // namespace VyrHost::Rename
