#include <VyrPlatform/files/FullPath.h>

#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>

#include <gtest/gtest.h>
#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>

using VyrPlatform::GetFullPath;
using VyrPlatform::GetRealPath;
using VyrTests::ScratchFolder;

namespace {

/// The current folder and `name`.
CString Here(const CString& name)
{
    const char16_t separator = VyrPlatform::FileSystem::Separator();
    return CString::Join({VyrPlatform::Process::GetCurrentFolder(), std::u16string_view(&separator, 1), name});
}

} // namespace

TEST(FullPath, ARelativePathStartsInTheCurrentFolder)
{
    EXPECT_EQ(GetFullPath(u"a"), Here(u"a"));
    EXPECT_EQ(GetFullPath(u"./a"), Here(u"a"));
    EXPECT_EQ(GetFullPath(u"a/"), Here(u"a"));
    EXPECT_EQ(GetFullPath(u"."), VyrPlatform::Process::GetCurrentFolder());
}

TEST(FullPath, AFullPathIsUnchanged)
{
    const CString full = Here(u"a b");
    EXPECT_EQ(GetFullPath(full), full);
    EXPECT_EQ(GetFullPath(full + u"/"), full);
    EXPECT_EQ(GetFullPath(full + u"//./"), full);
}

TEST(FullPath, TheRootKeepsItsSeparator)
{
    const CString root = GetFullPath(u"/");
    EXPECT_TRUE(VyrPlatform::FileSystem::IsSeparator(root[root.GetLength() - 1]));
    EXPECT_EQ(GetFullPath(root), root);
}

TEST(FullPath, AnEmptyPathStaysEmpty)
{
    EXPECT_TRUE(GetFullPath(CString()).IsEmpty());
}

TEST(FullPath, UnitsThatAreNotUtf8Stay)
{
    EXPECT_EQ(GetFullPath(u"a\xDCFF"), Here(u"a\xDCFF"));
}

TEST(RealPath, ResolvesStepsAndOtherSpellings)
{
    const ScratchFolder scratch;
    const CString folder = GetRealPath(scratch.MakeFolder(u"folder"));
    EXPECT_FALSE(folder.IsEmpty());
    EXPECT_EQ(GetRealPath(scratch.Path(u"folder/../folder/.")), folder);
    EXPECT_EQ(GetRealPath(folder), folder);
    EXPECT_EQ(GetFullPath(folder), folder);
    EXPECT_EQ(GetRealPath(scratch.WriteFile(u"folder/é")).Right(2), scratch.Path(u"folder/é").Right(2));
}

TEST(RealPath, OfNothingIsEmpty)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(GetRealPath(scratch.Path(u"missing")).IsEmpty());
    EXPECT_TRUE(GetRealPath(CString()).IsEmpty());
}

TEST(RealPath, LeadsThroughLinks)
{
    const ScratchFolder scratch;
    const CString folder = scratch.MakeFolder(u"folder/inner");
    if (const std::string reason = VyrTests::MakeLink(folder, scratch.Path(u"link")); !reason.empty())
        GTEST_SKIP() << reason;
    EXPECT_EQ(GetRealPath(scratch.Path(u"link")), GetRealPath(folder));
}
