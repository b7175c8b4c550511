// FileAttributes: the read-only state.
#include <VyrPlatform/files/FileAttributes.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

namespace FileAttributes = VyrPlatform::FileAttributes;
using VyrTests::ScratchFolder;

TEST(FileAttributes, NewFileIsNotReadOnly)
{
    const ScratchFolder scratch;
    EXPECT_FALSE(FileAttributes::IsReadOnly(scratch.WriteFile(u"a")));
    EXPECT_FALSE(FileAttributes::IsReadOnly(scratch.MakeFolder(u"folder")));
}

TEST(FileAttributes, FollowsTheFilesReadOnlyState)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    VyrTests::SetReadOnly(path, true);
    EXPECT_TRUE(FileAttributes::IsReadOnly(path));
    VyrTests::SetReadOnly(path, false);
    EXPECT_FALSE(FileAttributes::IsReadOnly(path));
}

TEST(FileAttributes, NothingIsNotReadOnly)
{
    const ScratchFolder scratch;
    constexpr char16_t withNul[] = u"a\0b";
    VyrTests::SetReadOnly(scratch.WriteFile(u"a"), true);
    EXPECT_FALSE(FileAttributes::IsReadOnly(scratch.Path(u"missing")));
    EXPECT_FALSE(FileAttributes::IsReadOnly(scratch.Path(u"a/below")));
    EXPECT_FALSE(FileAttributes::IsReadOnly(u""));
    EXPECT_FALSE(FileAttributes::IsReadOnly(scratch.Path(u"") + CString(std::u16string_view(withNul, 3))));
}
