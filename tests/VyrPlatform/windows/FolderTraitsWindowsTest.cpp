// The attributes of folders on Windows.
#include <VyrPlatform/FolderTraits.h>
#include <VyrPlatform/WindowsCString.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <windows.h>

TEST(FolderTraitsOnWindows, HiddenFolderMakesAHiddenOne)
{
    const VyrTests::ScratchFolder scratch;
    const CString from = scratch.MakeFolder(u"from");
    const CString to = scratch.MakeFolder(u"to");
    constexpr DWORD hidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    ASSERT_TRUE(SetFileAttributesW(VyrPlatform::ToWide(from), hidden));
    const auto traits = VyrPlatform::GetFolderTraits(from);
    ASSERT_TRUE(traits);
    ASSERT_EQ(VyrPlatform::SetFolderMode(to, *traits), 0u);
    EXPECT_EQ(GetFileAttributesW(VyrPlatform::ToWide(to)) & hidden, hidden);
}
