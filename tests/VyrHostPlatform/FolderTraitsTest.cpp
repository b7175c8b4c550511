// The traits of a folder are read from one and set on another.
#include <VyrHostPlatform/FolderTraits.h>

#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/text/Encoding.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

using VyrHostPlatform::FolderTraits;
using VyrTests::ScratchFolder;

TEST(FolderTraits, AreNoneForFilesAndMissingFolders)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"file", "1");
    EXPECT_FALSE(VyrHostPlatform::GetFolderTraits(file));
    EXPECT_FALSE(VyrHostPlatform::GetFolderTraits(scratch.Path(u"missing")));
    EXPECT_FALSE(VyrHostPlatform::GetFolderTraits(CString()));
}

TEST(FolderTraits, AreCopiedFromOneFolderToAnother)
{
    const ScratchFolder scratch;
    const std::optional<FolderTraits> traits = VyrHostPlatform::GetFolderTraits(scratch.MakeFolder(u"from"));
    ASSERT_TRUE(traits);
    const CString to = scratch.MakeFolder(u"to");
    EXPECT_EQ(VyrHostPlatform::SetFolderExtras(to, *traits), 0u);
    EXPECT_EQ(VyrHostPlatform::SetFolderMode(to, *traits), 0u);
    const std::optional<FolderTraits> given = VyrHostPlatform::GetFolderTraits(to);
    ASSERT_TRUE(given);
    EXPECT_EQ(given, traits);
}

TEST(FolderTraits, AreTheSameReadFromTheirText)
{
    const ScratchFolder scratch;
    constexpr std::uint32_t hiddenFolder = 0x12;
    const CString from = scratch.MakeFolder(u"from");
    const CString to = scratch.MakeFolder(u"to");
    ASSERT_EQ(VyrPlatform::FileAttributes::Set(from, hiddenFolder), 0u);
    const std::optional<FolderTraits> traits = VyrHostPlatform::GetFolderTraits(from);
    ASSERT_TRUE(traits);
    EXPECT_NE(VyrHostPlatform::GetFolderTraits(to), traits);
    const std::optional<FolderTraits> read = VyrHostPlatform::ParseFolderTraits(VyrHostPlatform::ToText(*traits));
    ASSERT_TRUE(read);
    EXPECT_EQ(VyrHostPlatform::SetFolderExtras(to, *read), 0u);
    EXPECT_EQ(VyrHostPlatform::SetFolderMode(to, *read), 0u);
    EXPECT_EQ(VyrHostPlatform::GetFolderTraits(to), traits);
    EXPECT_EQ(VyrPlatform::FileAttributes::Get(to), VyrPlatform::FileAttributes::Get(from));
}

TEST(FolderTraits, AreNotReadFromAnotherText)
{
    for (const CString text : {u"", u"x", u"-1", u"99999999999999999999", u"755:", u"755:0:0:zz=00", u"755:0:0:61",
                               u"755:0:0:61=0", u"77777:0:0", u"755:0:0:=61", u"755:0:0é"})
        EXPECT_FALSE(VyrHostPlatform::ParseFolderTraits(text)) << VyrPlatform::Encoding::ToUtf8(text);
}

TEST(FolderTraits, MissingFolderTakesNoMode)
{
    const ScratchFolder scratch;
    const std::optional<FolderTraits> traits = VyrHostPlatform::GetFolderTraits(scratch.MakeFolder(u"from"));
    ASSERT_TRUE(traits);
    EXPECT_NE(VyrHostPlatform::SetFolderMode(scratch.Path(u"missing"), *traits), 0u);
    EXPECT_FALSE(scratch.Has(u"missing"));
}
