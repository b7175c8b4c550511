// The attributes of folders on Windows.
#include <VyrHostPlatform/FolderTraits.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <windows.h>

TEST(FolderTraitsOnWindows, HiddenFolderGivesAHiddenOne)
{
    const VyrTests::ScratchFolder scratch;
    const CString from = scratch.MakeFolder(u"from");
    const CString to = scratch.MakeFolder(u"to");
    constexpr DWORD hidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    ASSERT_TRUE(SetFileAttributesW(VyrPlatform::ToWide(from), hidden));
    const auto traits = VyrHostPlatform::GetFolderTraits(from);
    ASSERT_TRUE(traits);
    ASSERT_EQ(VyrHostPlatform::SetFolderMode(to, *traits), 0u);
    EXPECT_EQ(GetFileAttributesW(VyrPlatform::ToWide(to)) & hidden, hidden);
}
