// Makes a folder the current one while the object lives.
#pragma once

#include <tests/support/StdPath.h>

#include <filesystem>

namespace VyrTests {

class CurrentFolder
{
public:
    explicit CurrentFolder(const CString& folder) { std::filesystem::current_path(ToStdPath(folder)); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() { std::filesystem::current_path(m_before); }

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};

} // namespace VyrTests
