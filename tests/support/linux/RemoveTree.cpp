// Removes folders on Linux.
#include <tests/support/RemoveTree.h>
#include <tests/support/StdPath.h>

namespace VyrTests {

namespace {

namespace fs = std::filesystem;

/// Lets the owner list and empty `folder` and the folders in it.
void Unlock(const fs::path& folder)
{
    std::error_code ignored;
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
    for (fs::directory_iterator entry(folder, ignored), end; entry != end; entry.increment(ignored)) {
        if (fs::is_directory(entry->symlink_status(ignored)))
            Unlock(entry->path());
    }
}

} // namespace

std::string RemoveTree(const CString& path)
{
    const fs::path folder = ToStdPath(path);
    std::error_code error;
    fs::remove_all(folder, error);
    if (error) {
        Unlock(folder);
        fs::remove_all(folder, error);
    }
    return error ? error.message() : std::string();
}

} // namespace VyrTests
