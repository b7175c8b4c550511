// For tests: what stands in a folder and below it, for comparison.
#pragma once

#include <VyrPlatform/text/CString.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace VyrTests {

/// Paths from the folder on, and the content of files; "<folder>", "-> TARGET" for a link, "<other>".
using TreeSnapshot = std::map<std::string, std::string>;

inline std::string ContentOf(const std::filesystem::directory_entry& entry)
{
    if (entry.is_symlink())
        return "-> " + std::filesystem::read_symlink(entry.path()).string();
    if (entry.is_directory())
        return "<folder>";
    if (!entry.is_regular_file())
        return "<other>";
    std::ostringstream content;
    // (An empty file would leave the stream failed, which nobody asks.)
    content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    return content.str();
}

/// No link is followed. A folder that is not there gives an entry "missing".
inline TreeSnapshot SnapshotOf(const CString& folder)
{
    namespace fs = std::filesystem;
    const fs::path root = ToStdPath(folder);
    if (!fs::is_directory(fs::symlink_status(root)))
        return {{"missing", ""}};
    TreeSnapshot snapshot;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root))
        snapshot.emplace(entry.path().lexically_relative(root).generic_string(), ContentOf(entry));
    return snapshot;
}

} // namespace VyrTests
