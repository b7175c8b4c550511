// The file operations, done by the platform.
#include <VyrHost/batch/FileOperations.h>

#include <VyrHostPlatform/DurableFile.h>
#include <VyrHostPlatform/RenameFile.h>
#include <VyrPlatform/files/FolderListing.h>

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

} // namespace VyrHost::Batch
