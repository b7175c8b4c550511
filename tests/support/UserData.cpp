// Files in the program's data folders.
#include <tests/support/StdPath.h>
#include <tests/support/UserData.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace VyrTests {

void UserData::WriteFile(const CString& path, std::string_view bytes)
{
    const std::filesystem::path stdPath = ToStdPath(path);
    std::filesystem::create_directories(stdPath.parent_path());
    std::ofstream stream(stdPath, std::ios::binary);
    stream << bytes;
    stream.flush();
    EXPECT_TRUE(stream.good()) << "cannot write " << stdPath;
}

} // namespace VyrTests
