// For tests: the content of a folder and its subfolders, for comparison.
#pragma once

#include <VyrPlatform/text/CString.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace VyrTests {

/// Relative paths, and the content of files; "<folder>", "-> TARGET" for a link, "<other>".
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
    // (An empty file leaves the stream failed, which does not matter.
    content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    return content.str();
}

/// Does not follow links. A folder that does not exist gives an entry "missing".
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
