// Moves from one Windows volume to another.
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/RemoveTree.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <random>
#include <string_view>

namespace FileCopy = VyrPlatform::FileCopy;
namespace FileSystem = VyrPlatform::FileSystem;

namespace {

/// A new folder of Wine's drive Z on a separate file system.
class OtherVolume
{
public:
    OtherVolume() { m_path.Format(uR"(Z:\dev\shm\vyr-test-%u)", static_cast<unsigned>(std::random_device()())); }
    OtherVolume(const OtherVolume&) = delete;
    OtherVolume& operator=(const OtherVolume&) = delete;
    ~OtherVolume()
    {
        if (!m_isMade)
            return;
        EXPECT_EQ(VyrTests::RemoveTree(m_path), "");
    }

    [[nodiscard]] bool Make() { return m_isMade = FileSystem::CreateFolder(m_path) == 0; }
    [[nodiscard]] CString Path(const CString& name) const { return m_path + u"\\" + name; }

private:
    CString m_path;
    bool m_isMade = false;
};

} // namespace

TEST(FileCopyVolumes, MoveTakesAFileToAnotherVolumeAndReplacesThere)
{
    const VyrTests::ScratchFolder scratch;
    OtherVolume volume;
    if (!volume.Make())
        GTEST_SKIP() << "there is no second volume (under Wine, /dev/shm)";
    constexpr VyrPlatform::FileTicks modified = VyrTests::TicksOfUnixTime(1'234'567'890, 1'234'500);
    const CString destination = volume.Path(u"b");
    for (const char* const content : {"first", "the second"}) {
        const CString source = scratch.WriteFile(u"a", content);
        VyrTests::StampFile(source, modified, modified);
        EXPECT_EQ(FileCopy::Move(source, destination), 0U);
        EXPECT_FALSE(scratch.Has(u"a"));
        EXPECT_EQ(FileSystem::Query(destination).size, static_cast<std::int64_t>(std::string_view(content).size()));
        EXPECT_EQ(VyrPlatform::FileTimes::GetModified(destination), modified);
    }
    EXPECT_EQ(FileCopy::Move(destination, scratch.Path(u"back")), 0U);
    EXPECT_EQ(scratch.ReadFile(u"back"), "the second");
    EXPECT_FALSE(FileSystem::Exists(destination));
}

TEST(FileCopyVolumes, ReadOnlyFileOnAnotherVolumeStays)
{
    const VyrTests::ScratchFolder scratch;
    OtherVolume volume;
    if (!volume.Make())
        GTEST_SKIP() << "there is no second volume (under Wine, /dev/shm)";
    const CString destination = volume.Path(u"b");
    ASSERT_EQ(FileCopy::Copy(scratch.WriteFile(u"a", "precious"), destination), 0U);
    VyrTests::SetReadOnly(destination, true);
    const CString source = scratch.WriteFile(u"a", "new");
    EXPECT_NE(FileCopy::Move(source, destination), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), "new");
    EXPECT_EQ(FileSystem::Query(destination).size, 8);
}
