// Who may read files that are flushed to the disk.
#include <VyrHostPlatform/DurableFile.h>

#include <gtest/gtest.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <sys/stat.h>

namespace DurableFile = VyrHostPlatform::DurableFile;
using VyrTests::ScratchFolder;

namespace {

/// The permissions of a new file that was written under `mask`.
mode_t ModeOfNew(DurableFile::Readers readers, mode_t mask)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"new");
    const mode_t former = umask(mask);
    EXPECT_EQ(DurableFile::WriteNew(
                  path, [](const auto& take) { take("content"); }, readers),
              0U);
    umask(former);
    struct stat status
    {};
    EXPECT_EQ(stat(VyrTests::ToStdPath(path).c_str(), &status), 0);
    return status.st_mode & 0777;
}

} // namespace

TEST(DurableFileLinux, NewFilesAreReadableByTheirOwnerOrByTheUmask)
{
    EXPECT_EQ(ModeOfNew(DurableFile::Readers::Owner, 0), 0600u);
    EXPECT_EQ(ModeOfNew(DurableFile::Readers::ByMask, 022), 0644u);
    EXPECT_EQ(ModeOfNew(DurableFile::Readers::ByMask, 077), 0600u);
}
