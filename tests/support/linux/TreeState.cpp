// The state of a tree on Linux: modes, times to the nanosecond, extended attributes and bytes.
#include <tests/support/StdPath.h>
#include <tests/support/TreeState.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sstream>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace VyrTests {

namespace {

/// Names and values, in the order of the names.
std::map<std::string, std::string> ExtendedAttributes(const char* path)
{
    constexpr std::size_t most = 65536;
    std::string names(most, '\0');
    names.resize(static_cast<std::size_t>(std::max<ssize_t>(llistxattr(path, names.data(), most), 0)));
    std::map<std::string, std::string> attributes;
    for (std::size_t at = 0; at < names.size(); at += std::strlen(names.c_str() + at) + 1) {
        std::string value(most, '\0');
        const char* const name = names.c_str() + at;
        value.resize(static_cast<std::size_t>(std::max<ssize_t>(lgetxattr(path, name, value.data(), most), 0)));
        attributes.emplace(name, value);
    }
    return attributes;
}

std::string Content(const char* path)
{
    const int file = open(path, O_RDONLY | O_NOATIME | O_CLOEXEC);
    EXPECT_GE(file, 0) << path << ": " << std::strerror(errno);
    std::string content;
    char piece[4096];
    for (ssize_t count = 1; (count = read(file, piece, sizeof piece)) > 0;)
        content.append(piece, static_cast<std::size_t>(count));
    close(file);
    return content;
}

std::string StateOf(const char* path)
{
    struct stat status = {};
    EXPECT_EQ(lstat(path, &status), 0) << path;
    std::ostringstream text;
    text << std::oct << status.st_mode << std::dec;
    if (!S_ISDIR(status.st_mode))
        text << " modified " << status.st_mtim.tv_sec << '.' << status.st_mtim.tv_nsec << " accessed "
             << status.st_atim.tv_sec << '.' << status.st_atim.tv_nsec;
    for (const auto& [name, value] : ExtendedAttributes(path))
        text << ' ' << name << "='" << value << '\'';
    if (S_ISREG(status.st_mode))
        text << " content '" << Content(path) << '\'';
    return std::move(text).str();
}

} // namespace

std::map<std::string, std::string> TreeState(const CString& root)
{
    std::map<std::string, std::string> tree;
    const std::filesystem::path top = ToStdPath(root);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(top))
        tree.emplace(entry.path().lexically_relative(top), StateOf(entry.path().c_str()));
    return tree;
}

} // namespace VyrTests
