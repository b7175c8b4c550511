// The state of a tree on Windows: attributes, times, marks of downloads and bytes.
#include <tests/support/StdPath.h>
#include <tests/support/TreeState.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <windows.h>

namespace VyrTests {

namespace {

void AppendTime(std::ostream& text, const char* name, const FILETIME& time)
{
    text << ' ' << name << ' ' << (ULONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime);
}

/// The bytes of the file or stream at `path`, whose times stay; "none" where there is none.
std::string Content(const std::wstring& path)
{
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ | FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return "none";
    FILETIME accessed = {};
    EXPECT_TRUE(GetFileTime(file, nullptr, &accessed, nullptr));
    std::string content;
    char piece[4096];
    for (DWORD count = 1; ReadFile(file, piece, sizeof piece, &count, nullptr) && count > 0;)
        content.append(piece, count);
    EXPECT_TRUE(SetFileTime(file, nullptr, &accessed, nullptr));
    CloseHandle(file);
    return '\'' + content + '\'';
}

std::string StateOf(const std::filesystem::path& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    EXPECT_TRUE(GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) << path;
    std::ostringstream text;
    text << std::hex << data.dwFileAttributes << std::dec;
    if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
        return std::move(text).str();
    AppendTime(text, "created", data.ftCreationTime);
    AppendTime(text, "modified", data.ftLastWriteTime);
    AppendTime(text, "accessed", data.ftLastAccessTime);
    text << " content " << Content(path.native()) << " mark " << Content(path.native() + L":Zone.Identifier");
    return std::move(text).str();
}

} // namespace

std::map<std::string, std::string> TreeState(const CString& root)
{
    std::map<std::string, std::string> tree;
    const std::filesystem::path top = ToStdPath(root);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
        const std::string name = entry.path().lexically_relative(top).generic_string();
        // Where streams are files beside the one that they belong to.
        if (!name.ends_with(":Zone.Identifier"))
            tree.emplace(name, StateOf(entry.path()));
    }
    return tree;
}

} // namespace VyrTests
