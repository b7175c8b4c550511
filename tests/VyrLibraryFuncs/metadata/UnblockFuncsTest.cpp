// The mark of a download is removed; everything else is kept.
#include <VyrLibraryFuncs/metadata/UnblockFuncs.h>

#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

#include <VyrPlatform/files/FileAttributes.h>

#include <gtest/gtest.h>

using VyrLibraryFuncs::UnblockFuncs;
using VyrTests::ScratchFolder;
namespace FileAttributes = VyrPlatform::FileAttributes;

TEST(UnblockFuncs, MarkIsRemoved)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.zip", "content");
    const std::uint32_t before = FileAttributes::Get(path);
    VyrTests::MarkAsDownloaded(path);
    EXPECT_NE(UnblockFuncs::DeleteZoneId(path), 0);
    EXPECT_FALSE(VyrTests::IsMarkedAsDownloaded(path));
    EXPECT_EQ(FileAttributes::Get(path), before);
    EXPECT_EQ(scratch.ReadFile(u"a.zip"), "content");
}

TEST(UnblockFuncs, ReadOnlyFileIsUnmarkedAndStaysReadOnly)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.zip", "content");
    VyrTests::MarkAsDownloaded(path);
    ASSERT_EQ(FileAttributes::Set(path, FileAttributes::Get(path) | 0x3), 0U);
    const std::uint32_t before = FileAttributes::Get(path);
    EXPECT_NE(UnblockFuncs::DeleteZoneId(path), 0);
    EXPECT_FALSE(VyrTests::IsMarkedAsDownloaded(path));
    EXPECT_EQ(FileAttributes::Get(path), before);
    EXPECT_EQ(scratch.ReadFile(u"a.zip"), "content");
}

TEST(UnblockFuncs, FileWithoutMarkGivesZeroAndIsNotChanged)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.zip", "content");
    for (const bool isReadOnly : {false, true}) {
        VyrTests::SetReadOnly(path, isReadOnly);
        EXPECT_EQ(UnblockFuncs::DeleteZoneId(path), 0);
        EXPECT_EQ(FileAttributes::IsReadOnly(path), isReadOnly);
    }
    EXPECT_EQ(scratch.ReadFile(u"a.zip"), "content");
}

TEST(UnblockFuncs, NothingGivesZero)
{
    const ScratchFolder scratch;
    EXPECT_EQ(UnblockFuncs::DeleteZoneId(scratch.Path(u"missing")), 0);
    EXPECT_EQ(UnblockFuncs::DeleteZoneId(CString()), 0);
}
