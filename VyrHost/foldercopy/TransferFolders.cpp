// Restores the times and traits of folders that were created.
#include <VyrHost/foldercopy/Transfer.h>

#include <VyrHostPlatform/FolderTraits.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileTimes.h>

#include <optional>
#include <unordered_map>
#include <utility>

namespace VyrHost::FolderCopy {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileTicks;
namespace FileTimes = VyrPlatform::FileTimes;

/// The ticks for `recorded`: `exact` where both are the same second.
std::optional<FileTicks> TicksOf(const COleDateTime& recorded, std::optional<FileTicks> exact)
{
    if (exact && FileTimes::ToLocal(*exact).m_dt == recorded.m_dt)
        return exact;
    return FileTimes::FromLocal(recorded);
}

using FoldersByPath = std::unordered_map<CString, const SnapshotFolder*>;

FoldersByPath FoldersOf(const FolderSnapshot& tree)
{
    FoldersByPath folders;
    for (const SnapshotFolder& folder : tree.folders)
        folders.emplace(FileUtils::GetCombinePath(tree.root, folder.path), &folder);
    return folders;
}

class FolderCompletion
{
public:
    explicit FolderCompletion(const FolderSnapshot& tree) : m_folders(FoldersOf(tree)) {}

    void Complete(const VyrLibraryFuncs::NameFuncs::RENAMEITEM& record)
    {
        const auto found = m_folders.find(record.sourcePath);
        const SnapshotFolder* const known = found == m_folders.end() ? nullptr : found->second;
        const CString& path = record.destinationPath;
        std::uint32_t firstError = 0;
        const auto check = [&firstError](std::uint32_t error) {
            if (firstError == 0)
                firstError = error;
        };
        // The creation time may be in an extended attribute, and the permissions may forbid setting any.
        if (known && known->traits)
            check(VyrHostPlatform::SetFolderExtras(path, *known->traits));
        if (const auto created = TicksOf(record.dateCreated, Exactly(known, &SnapshotFolder::created)))
            if (const std::uint32_t error = FileTimes::SetCreated(path, *created))
                m_result.creationError = error;
        if (const auto modified = TicksOf(record.dateModified, Exactly(known, &SnapshotFolder::modified)))
            check(FileTimes::SetModified(path, *modified));
        if (known && known->traits)
            check(VyrHostPlatform::SetFolderMode(path, *known->traits));
        if (firstError)
            m_result.problems.push_back(
                {known ? known->path : record.sourcePath, TransferFault::FolderNotSet, firstError});
    }

    [[nodiscard]] CreatedFoldersResult Take() { return std::move(m_result); }

private:
    static std::optional<FileTicks> Exactly(const SnapshotFolder* known, FileTicks SnapshotFolder::*time)
    {
        return known ? std::optional(known->*time) : std::nullopt;
    }

    const FoldersByPath m_folders;
    CreatedFoldersResult m_result;
};

} // namespace

CreatedFoldersResult CompleteFolders(const FolderSnapshot& tree, const TransferRecords& records)
{
    FolderCompletion completion(tree);
    for (auto record = records.rbegin(); record != records.rend(); ++record)
        completion.Complete(*record);
    return completion.Take();
}

} // namespace VyrHost::FolderCopy
