// On Windows the program's data folders are the user's own: what stands there is put aside for a while.
#include <VyrPlatform/process/Process.h>

#include <tests/support/StdPath.h>
#include <tests/support/UserData.h>

#include <filesystem>
#include <vector>

namespace VyrTests {

using VyrPlatform::Process::DataLocation;

struct UserData::Kept
{
    /// The program's folders, and where each was put.
    std::vector<std::pair<std::filesystem::path, std::filesystem::path>> folders;
};

namespace {

/// The name of this program's folder in the data folders.
std::filesystem::path FolderName()
{
    const CString product = VyrPlatform::Process::GetProgramVersion().productName;
    return product.IsEmpty() ? ToStdPath(VyrPlatform::Process::GetProgramPath()).stem() : ToStdPath(product);
}

} // namespace

UserData::UserData() : m_kept(std::make_unique<Kept>())
{
    const std::filesystem::path name = FolderName();
    for (const DataLocation location : {DataLocation::Local, DataLocation::Roaming}) {
        const std::filesystem::path parent = ToStdPath(VyrPlatform::Process::GetDataFolder(location));
        const std::filesystem::path folder = parent / name;
        const std::filesystem::path aside = parent / (name.wstring() + L" put aside by tests");
        // A run that was killed may have left it: then what stands there now is that run's.
        if (exists(folder) && !exists(aside))
            rename(folder, aside);
        remove_all(folder);
        m_kept->folders.emplace_back(folder, aside);
    }
}

UserData::~UserData()
{
    for (const auto& [folder, aside] : m_kept->folders) {
        std::error_code ignored;
        remove_all(folder, ignored);
        if (exists(aside, ignored))
            rename(aside, folder, ignored);
    }
}

} // namespace VyrTests
