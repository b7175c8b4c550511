// Keeps the folders that were used last.
#include <VyrHost/batch/FolderCache.h>

#include <algorithm>

namespace VyrHost::Batch {

namespace {

constexpr std::size_t mostOpen = 16;

} // namespace

FolderCache::FolderCache(const PlanProgress& progress, FileOperations& files) : m_progress(progress), m_files(files) {}

OpenedFolder FolderCache::Open(Model::PlanIndex folder)
{
    const auto known = std::find_if(m_cached.begin(), m_cached.end(),
                                    [folder](const Cached& cached) { return cached.folder == folder; });
    if (known != m_cached.end()) {
        std::rotate(m_cached.begin(), known, known + 1);
        return {m_cached.front().operations.get()};
    }
    const std::optional<CString> path = m_progress.PathOfFolder(folder);
    OpenedFolder opened;
    if (!path)
        return opened;
    std::unique_ptr<FolderOperations> operations = m_files.OpenFolder(*path, opened.error);
    if (!operations)
        return opened;
    opened.folder = operations.get();
    if (m_cached.size() == mostOpen)
        m_cached.pop_back();
    m_cached.insert(m_cached.begin(), {folder, std::move(operations)});
    return opened;
}

void FolderCache::Forget(Model::PlanIndex folder)
{
    std::erase_if(m_cached, [this, folder](const Cached& cached) { return IsIn(cached.folder, folder); });
}

VyrPlatform::FileState FolderCache::Look(const Model::Place& place)
{
    const OpenedFolder opened = Open(place.folder);
    if (opened.folder)
        return opened.folder->Look(place.name);
    VyrPlatform::FileState missing;
    missing.error = opened.error;
    return missing;
}

bool FolderCache::IsIn(Model::PlanIndex folder, Model::PlanIndex outer) const
{
    for (Model::PlanIndex at = folder; at != Model::none;) {
        if (at == outer)
            return true;
        const std::optional<Model::Place> place = m_progress.PlaceOfFolder(at);
        if (!place)
            return true;
        at = place->folder;
    }
    return false;
}

} // namespace VyrHost::Batch
