// Makes and removes the folders in which tests work.
#include <tests/support/RemoveTree.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

namespace VyrTests {

namespace {

namespace fs = std::filesystem;

fs::path MakeUniqueFolder()
{
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        fs::path folder = fs::temp_directory_path() / ("vyr-test-" + std::to_string(random()));
        if (fs::create_directory(folder))
            return folder;
    }
    throw std::runtime_error("no name is free for a folder in " + fs::temp_directory_path().string());
}

} // namespace

ScratchFolder::ScratchFolder() : m_path(FromStdPath(fs::canonical(MakeUniqueFolder()))) {}

ScratchFolder::~ScratchFolder()
{
    const std::string whyNot = RemoveTree(m_path);
    EXPECT_EQ(whyNot, "") << "cannot remove the scratch folder " << ToStdPath(m_path);
}

CString ScratchFolder::Path(std::u16string_view name) const
{
    return FromStdPath((ToStdPath(m_path) / ToStdPath(name)).make_preferred());
}

CString ScratchFolder::WriteFile(std::u16string_view name, std::string_view bytes) const
{
    const CString path = Path(name);
    const fs::path file = ToStdPath(path);
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream)
        throw std::runtime_error("cannot write " + file.string());
    return path;
}

CString ScratchFolder::MakeFolder(std::u16string_view name) const
{
    const CString path = Path(name);
    fs::create_directories(ToStdPath(path));
    return path;
}

std::string ScratchFolder::ReadFile(std::u16string_view name) const
{
    std::ifstream stream(ToStdPath(Path(name)), std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << "cannot read " << ToStdPath(Path(name));
    std::ostringstream content;
    if (stream.peek() != std::ifstream::traits_type::eof())
        content << stream.rdbuf();
    return std::move(content).str();
}

bool ScratchFolder::Has(std::u16string_view name) const
{
    return fs::exists(fs::symlink_status(ToStdPath(Path(name))));
}

} // namespace VyrTests
