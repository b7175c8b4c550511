#include <tests/VyrHost/batch/FaultyFiles.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <fstream>

namespace VyrTests {

namespace {

using namespace VyrHost::Batch;

class FaultyFolder final : public FolderOperations
{
public:
    FaultyFolder(FaultyFiles& files, std::unique_ptr<FolderOperations> folder)
        : m_files(files), m_folder(std::move(folder))
    {}

    VyrPlatform::FileState Look(std::u16string_view name) override { return m_folder->Look(name); }
    std::uint32_t Rename(std::u16string_view name, FolderOperations& target, std::u16string_view newName) override
    {
        return m_files.Change({FileChange::Kind::Rename, name, newName},
                              [&] { return m_folder->Rename(name, Inner(target), newName); });
    }
    std::uint32_t DropSecondName(std::u16string_view name, FolderOperations& kept,
                                 std::u16string_view keptName) override
    {
        return m_files.Change({FileChange::Kind::DropSecondName, name, keptName},
                              [&] { return m_folder->DropSecondName(name, Inner(kept), keptName); });
    }
    std::uint32_t MakeFolder(std::u16string_view name) override
    {
        return m_files.Change({FileChange::Kind::MakeFolder, name, {}}, [&] { return m_folder->MakeFolder(name); });
    }
    std::uint32_t RemoveEmptyFolder(std::u16string_view name) override
    {
        return m_files.Change({FileChange::Kind::RemoveFolder, name, {}},
                              [&] { return m_folder->RemoveEmptyFolder(name); });
    }

private:
    static FolderOperations& Inner(FolderOperations& folder) { return *static_cast<FaultyFolder&>(folder).m_folder; }

    FaultyFiles& m_files;
    std::unique_ptr<FolderOperations> m_folder;
};

// No test can see whether data has reached the disk, and waiting for it would take most of the tests' time.
std::uint32_t WriteWithoutWaiting(const CString& path, const VyrHostPlatform::DurableFile::Content& content)
{
    const std::filesystem::path file = ToStdPath(path);
    if (std::filesystem::exists(file))
        return SystemFiles().WriteNew(path, content);
    std::ofstream stream(file, std::ios::binary);
    content([&stream](std::string_view piece) { stream << piece; });
    return 0;
}

} // namespace

std::uint32_t FaultyFiles::Change(const FileChange& change, const std::function<std::uint32_t()>& act)
{
    const std::size_t number = m_changes++;
    const std::uint32_t fault = before ? before(change, number) : 0;
    const std::uint32_t error = fault ? fault : act();
    if (error == 0 && after)
        after(change, number);
    return error;
}

std::unique_ptr<FolderOperations> FaultyFiles::OpenFolder(const CString& path, std::uint32_t& error)
{
    std::unique_ptr<FolderOperations> folder = SystemFiles().OpenFolder(path, error);
    return folder ? std::make_unique<FaultyFolder>(*this, std::move(folder)) : nullptr;
}

std::uint32_t FaultyFiles::List(const CString& path, const std::function<void(const CString&)>& use)
{
    return SystemFiles().List(path, use);
}

VyrHostPlatform::NameFolding FaultyFiles::GetNameFolding(const CString& path)
{
    return folding ? folding(path) : SystemFiles().GetNameFolding(path);
}

std::uint32_t FaultyFiles::WriteNew(const CString& path, const VyrHostPlatform::DurableFile::Content& content)
{
    return Change({FileChange::Kind::WriteNew, path, {}}, [&] { return WriteWithoutWaiting(path, content); });
}

std::uint32_t FaultyFiles::Append(const CString& path, std::string_view content)
{
    return Change({FileChange::Kind::Append, path, {}}, [&] { return SystemFiles().Append(path, content); });
}

std::uint32_t FaultyFiles::RenameFile(const CString& from, const CString& to)
{
    return Change({FileChange::Kind::RenameFile, from, to}, [&] { return SystemFiles().RenameFile(from, to); });
}

std::uint32_t FaultyFiles::Remove(const CString& path)
{
    return Change({FileChange::Kind::Remove, path, {}}, [&] { return SystemFiles().Remove(path); });
}

std::uint32_t FaultyFiles::FlushFolder(const CString& path)
{
    return Change({FileChange::Kind::Flush, path, {}}, [] { return 0u; });
}

} // namespace VyrTests
