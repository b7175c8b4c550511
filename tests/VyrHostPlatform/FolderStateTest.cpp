// The state of a folder: what holds on both systems.
#include <VyrHostPlatform/FolderState.h>

#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

using namespace VyrHostPlatform;
using VyrTests::ScratchFolder;

TEST(FolderState, IsRestoredOnANewFolder)
{
    const ScratchFolder scratch;
    constexpr std::uint32_t hiddenFolder = 0x12;
    const CString old = scratch.MakeFolder(u"old");
    ASSERT_EQ(VyrPlatform::FileAttributes::Set(old, hiddenFolder), 0U);
    std::uint32_t error = 0;
    const auto state = ReadFolderState(old, error);
    ASSERT_TRUE(state);
    EXPECT_TRUE(IsFolderState(*state)) << VyrPlatform::Encoding::ToUtf8(*state);

    const CString made = scratch.MakeFolder(u"new");
    EXPECT_NE(ReadFolderState(made, error), state);
    EXPECT_EQ(RestoreFolderState(made, *state), 0U);
    EXPECT_EQ(ReadFolderState(made, error), state);
    EXPECT_EQ(VyrPlatform::FileAttributes::Get(made), VyrPlatform::FileAttributes::Get(old));
}

TEST(FolderState, OfAMissingFolderIsAnError)
{
    const ScratchFolder scratch;
    std::uint32_t error = 0;
    EXPECT_FALSE(ReadFolderState(scratch.Path(u"missing"), error));
    EXPECT_NE(error, 0U);
}

TEST(FolderState, OfAnotherFormIsRefused)
{
    const ScratchFolder scratch;
    for (const CString text : {u"", u"x", u"-1", u"99999999999999999999", u"755:", u"755:0:0:zz=00", u"755:0:0:61",
                               u"755:0:0:61=0", u"77777:0:0", u"755:0:0:=61"}) {
        EXPECT_FALSE(IsFolderState(text)) << VyrPlatform::Encoding::ToUtf8(text);
        EXPECT_NE(RestoreFolderState(scratch.Path(), text), 0U) << VyrPlatform::Encoding::ToUtf8(text);
    }
}
