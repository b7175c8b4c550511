// Puts recorded times on folders.
#include <VyrHost/trees/FolderTimes.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/FileTimes.h>

#include <optional>
#include <unordered_map>

namespace VyrHost {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileTicks;
namespace FileTimes = VyrPlatform::FileTimes;

/// The ticks that `recorded` stands for: `exact` where that is the same to the second.
std::optional<FileTicks> TicksOf(const COleDateTime& recorded, std::optional<FileTicks> exact)
{
    if (exact && FileTimes::ToLocal(*exact).m_dt == recorded.m_dt)
        return exact;
    return FileTimes::FromLocal(recorded);
}

using FoldersByPath = std::unordered_map<CString, const TreeFolder*>;

FoldersByPath FoldersOf(const Tree& tree)
{
    FoldersByPath folders;
    for (const TreeFolder& folder : tree.folders)
        folders.emplace(FileUtils::GetCombinePath(tree.root, folder.path), &folder);
    return folders;
}

} // namespace

FolderTimesResult SetFolderTimes(const Tree& tree, const TreeRecords& records)
{
    FolderTimesResult result;
    const FoldersByPath folders = FoldersOf(tree);
    for (auto record = records.rbegin(); record != records.rend(); ++record) {
        const auto found = folders.find(record->sourcePath);
        const TreeFolder* const known = found == folders.end() ? nullptr : found->second;
        const auto exactly = [known](FileTicks TreeFolder::*time) {
            return known ? std::optional(known->*time) : std::nullopt;
        };
        if (const auto created = TicksOf(record->dateCreated, exactly(&TreeFolder::created)))
            if (const std::uint32_t error = FileTimes::SetCreated(record->destinationPath, *created))
                result.creationError = error;
        if (const auto modified = TicksOf(record->dateModified, exactly(&TreeFolder::modified)))
            if (const std::uint32_t error = FileTimes::SetModified(record->destinationPath, *modified))
                result.problems.push_back({known ? known->path : record->sourcePath, TreeFault::TimesNotSet, error});
    }
    return result;
}

} // namespace VyrHost
