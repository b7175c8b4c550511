// The system's file operations, and the cache of open folders.
#include <VyrHost/batch/FileOperations.h>

#include <VyrHostPlatform/DurableFile.h>
#include <VyrHostPlatform/RenameFile.h>
#include <VyrPlatform/files/FolderListing.h>

#include <algorithm>

namespace VyrHost::Batch {

namespace {

namespace DurableFile = VyrHostPlatform::DurableFile;

class SystemFolder final : public FolderOperations
{
public:
    explicit SystemFolder(const CString& path) : m_folder(path) {}

    [[nodiscard]] std::uint32_t Error() const { return m_folder.Error(); }

    VyrPlatform::FileState Look(std::u16string_view name) override { return m_folder.Look(name); }
    std::uint32_t Rename(std::u16string_view name, FolderOperations& target, std::u16string_view newName) override
    {
        return m_folder.RenameNoReplace(name, static_cast<SystemFolder&>(target).m_folder, newName);
    }
    std::uint32_t DropSecondName(std::u16string_view name, FolderOperations& kept,
                                 std::u16string_view keptName) override
    {
        return m_folder.DropSecondName(name, static_cast<SystemFolder&>(kept).m_folder, keptName);
    }
    std::uint32_t MakeFolder(std::u16string_view name) override { return m_folder.MakeFolder(name); }
    std::uint32_t RemoveEmptyFolder(std::u16string_view name) override { return m_folder.RemoveEmptyFolder(name); }

private:
    VyrHostPlatform::OpenFolder m_folder;
};

class SystemFileOperations final : public FileOperations
{
public:
    std::unique_ptr<FolderOperations> OpenFolder(const CString& path, std::uint32_t& error) override
    {
        auto folder = std::make_unique<SystemFolder>(path);
        error = folder->Error();
        if (error)
            folder.reset();
        return folder;
    }
    std::uint32_t List(const CString& path, const std::function<void(const CString&)>& use) override
    {
        VyrPlatform::FolderListing listing(path);
        while (listing.Next())
            use(listing.Name());
        return listing.Error();
    }
    VyrHostPlatform::NameFolding GetNameFolding(const CString& path) override
    {
        return VyrHostPlatform::GetNameFolding(path);
    }

    std::uint32_t WriteNew(const CString& path, const DurableFile::Content& content) override
    {
        return DurableFile::WriteNew(path, content);
    }
    std::uint32_t Append(const CString& path, std::string_view content) override
    {
        return DurableFile::Append(path, content);
    }
    std::uint32_t RenameFile(const CString& from, const CString& to) override
    {
        return VyrHostPlatform::RenameNoReplace(from, to);
    }
    std::uint32_t Remove(const CString& path) override { return DurableFile::Remove(path); }
    std::uint32_t FlushFolder(const CString& path) override { return DurableFile::FlushFolder(path); }
};

} // namespace

FileOperations& SystemFiles()
{
    static SystemFileOperations files;
    return files;
}

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
