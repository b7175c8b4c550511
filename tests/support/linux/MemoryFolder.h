// For tests: a folder on the file system in memory, which is another one than that of scratch folders mostly is.
#pragma once

#include <filesystem>
#include <string>
#include <unistd.h>

namespace VyrTests {

/// It is removed at the end. One process has one at a time.
class MemoryFolder
{
public:
    MemoryFolder() : m_path("/dev/shm/vyr-test-" + std::to_string(getpid()))
    {
        std::filesystem::create_directory(m_path);
    }
    MemoryFolder(const MemoryFolder&) = delete;
    MemoryFolder& operator=(const MemoryFolder&) = delete;
    ~MemoryFolder() { std::filesystem::remove_all(m_path); }

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace VyrTests
