#include "FolderPins.h"

#include <algorithm>
#include <fcntl.h>

namespace VyrPlatform {

namespace {

/// The largest distance between one pinned folder and the next. Names have at most 255 bytes, so that there is always
/// one.
constexpr std::size_t stepLength = 300;
/// The maximum of open folders: the system allows 1,024 files to a process.
constexpr std::size_t mostFolders = 256;

} // namespace

int FolderPins::Open(std::string_view path, int parent, std::size_t start, std::size_t end)
{
    const std::string_view folder = path.substr(0, end);
    if (const auto known = m_folders.find(folder); known != m_folders.end())
        return known->second.Get();
    const std::string step(path.substr(start, end - start));
    const int opened = openat(parent, step.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (opened >= 0)
        m_folders.try_emplace(std::string(folder), opened);
    return opened;
}

std::string FolderPins::Shorten(std::string_view path)
{
    if (m_folders.size() > mostFolders)
        m_folders.clear();
    int folder = AT_FDCWD;
    std::size_t done = 0;
    while (path.size() - done > stepLength) {
        const std::size_t end = path.rfind('/', done + stepLength);
        if (end == std::string_view::npos || end <= done)
            return {};
        folder = Open(path, folder, done, end);
        if (folder < 0)
            return {};
        done = std::min(path.find_first_not_of('/', end), path.size());
    }
    return "/proc/self/fd/" + std::to_string(folder) + "/" + std::string(path.substr(done));
}

} // namespace VyrPlatform
