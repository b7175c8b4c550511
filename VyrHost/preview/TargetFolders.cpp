// Finds or claims the folders that entries move into.
#include <VyrHost/preview/TargetFolders.h>

#include <VyrHost/preview/NameJudge.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/FileSystem.h>

#include <unordered_set>

namespace VyrHost {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileSystem::Kind;

CString WithoutSeparator(const CString& folder)
{
    return folder.Left(folder.GetLength() - 1);
}

void AppendMissing(EntryList& list, std::uint32_t number, std::unordered_set<std::uint32_t>& known,
                   std::vector<CString>& missing)
{
    const Folder& folder = list.folders[number];
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
    const Folder& folder = m_folders[number];
    if (folder.exists)
        return {number, Reason::None};
    const auto known = m_reasons.find(number);
    if (known != m_reasons.end())
        return {number, known->second};
    const Reason reason = Claim(folder);
    m_reasons.emplace(number, reason);
    return {number, reason};
}

/// Takes the name of a folder that is not there yet, and of those above it.
Reason TargetFolders::Claim(const Folder& folder)
{
    const CString path = WithoutSeparator(folder.path);
    const CString above = FileUtils::GetSplitDirPath(path);
    const CString name = path.Mid(above.GetLength());
    if (VyrPlatform::FileSystem::IsFolder(folder.path))
        return Reason::FolderNotRead;
    if (name.IsEmpty() || JudgeName(name, {}).reason != Reason::None)
        return Reason::BadFolder;
    const Target parent = Open(above, {});
    if (parent.reason != Reason::None)
        return parent.reason;
    NameRecord& record = m_folders[parent.folder].names.Add(m_folders.Keep(name));
    if (record.kind != Kind::Missing)
        return Reason::BadFolder;
    record.holder = NewFolder;
    return Reason::None;
}

std::vector<CString> FoldersToMake(EntryList& list, const std::vector<Decision>& decisions)
{
    std::vector<CString> missing;
    std::unordered_set<std::uint32_t> known;
    for (const Decision& decision : decisions)
        if (decision.IsRename())
            AppendMissing(list, decision.folder, known, missing);
    return missing;
}

} // namespace VyrHost
