// The lower limits for renaming many files in the current folder, from IMG_00000.jpg to Trip_00000.jpg and so on.
// Use: RenameLoop COUNT   a bare loop of rename calls, for names that are known
//      RenameLoop         lists and sorts the names, looks at each file, as an undo needs, and renames
#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace {

constexpr std::string_view before = "IMG_";

void Rename(const char* from)
{
    char to[NAME_MAX + 1];
    std::snprintf(to, sizeof(to), "Trip_%s", from + before.size());
    if (std::rename(from, to) != 0) {
        std::perror(from);
        std::exit(EXIT_FAILURE);
    }
}

void RenameKnown(int count)
{
    for (int index = 0; index < count; ++index) {
        char from[32];
        std::snprintf(from, sizeof(from), "IMG_%05d.jpg", index);
        Rename(from);
    }
}

std::vector<std::string> ListedNames()
{
    std::vector<std::string> names;
    DIR* const folder = opendir(".");
    while (const dirent* const entry = folder == nullptr ? nullptr : readdir(folder))
        if (std::string_view(entry->d_name).starts_with(before))
            names.emplace_back(entry->d_name);
    if (folder != nullptr)
        closedir(folder);
    std::sort(names.begin(), names.end());
    return names;
}

void LookAt(const std::vector<std::string>& names, std::size_t first, std::size_t end)
{
    struct statx state;
    for (std::size_t index = first; index < end; ++index)
        if (statx(AT_FDCWD, names[index].c_str(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS, &state) != 0)
            std::perror(names[index].c_str());
}

void RenameListed()
{
    const std::vector<std::string> names = ListedNames();
    // On two threads, as vyr does.
    const std::size_t half = names.size() / 2;
    std::thread other(LookAt, std::cref(names), 0, half);
    LookAt(names, half, names.size());
    other.join();
    for (const std::string& name : names)
        Rename(name.c_str());
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount > 1)
        RenameKnown(std::atoi(arguments[1]));
    else
        RenameListed();
}
