/// @file
/// For benchmarks: a temporary folder on the disk.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdlib>
#include <filesystem>
#include <string>

/// An empty folder in the system's temporary folder. Removes itself with its contents.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string pattern = std::filesystem::temp_directory_path() / "vyr-bench-XXXXXX";
        m_path = mkdtemp(pattern.data());
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_path; }

private:
    std::filesystem::path m_path;
};

[[nodiscard]] inline CString Widen(const std::string& ascii)
{
    return CString(std::u16string(ascii.begin(), ascii.end()));
}
