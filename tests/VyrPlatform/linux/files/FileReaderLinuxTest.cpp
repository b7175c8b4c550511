// What reading a file leaves as it was.
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <sys/stat.h>
#include <unistd.h>

using VyrPlatform::FileReader;
using VyrTests::ScratchFolder;

namespace {

/// Earlier than the last change, so that a file system that notes few accesses would note the next one.
constexpr VyrPlatform::FileTicks accessed = VyrTests::TicksOfUnixTime(1'000'000'000);

} // namespace

TEST(FileReaderLinux, AccessTimeStays)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    VyrTests::StampFile(path, accessed + 1, accessed);
    std::array<std::byte, 4> bytes{};
    EXPECT_EQ(FileReader(path).ReadAt(0, bytes), bytes.size());
    EXPECT_EQ(VyrPlatform::FileTimes::GetAccessed(path), accessed);
    EXPECT_EQ(FileReader(path, bytes).BeginningSize(), bytes.size());
    EXPECT_EQ(VyrPlatform::FileTimes::GetAccessed(path), accessed);
}

TEST(FileReaderLinux, FileOfAnotherUserIsRead)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make a file of another user";
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    ASSERT_EQ(chmod(VyrTests::ToStdPath(scratch.Path()).c_str(), 0755), 0);
    ASSERT_EQ(chmod(VyrTests::ToStdPath(path).c_str(), 0644), 0);
    const VyrTests::Unprivileged user;
    ASSERT_TRUE(user.IsDone());
    std::array<std::byte, 7> bytes{};
    EXPECT_EQ(FileReader(path).ReadAt(0, bytes), bytes.size());
    EXPECT_EQ(FileReader(path, bytes).BeginningSize(), bytes.size());
}
