// Tests of full paths.
#include <VyrPlatform/FullPath.h>

#include <VyrPlatform/FileSystem.h>
#include <VyrPlatform/Process.h>

#include <gtest/gtest.h>

using VyrPlatform::GetFullPath;

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

TEST(FullPath, AFullPathStaysWhatItIs)
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
