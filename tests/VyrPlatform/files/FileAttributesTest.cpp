// Attributes that both systems keep in the same way.
#include <VyrPlatform/files/FileAttributes.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <optional>

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

namespace {

constexpr std::uint32_t readOnly = 0x1;
constexpr std::uint32_t hidden = 0x2;
constexpr std::uint32_t systemFile = 0x4;
constexpr std::uint32_t folder = 0x10;
constexpr std::uint32_t archive = 0x20;
constexpr std::uint32_t normal = 0x80;
/// Those of the two that every system keeps.
constexpr std::uint32_t keptEverywhere = hidden | systemFile;

} // namespace

TEST(FileAttributes, OfANewFileAndFolder)
{
    const ScratchFolder scratch;
    const std::uint32_t ofFile = FileAttributes::Get(scratch.WriteFile(u"a"));
    EXPECT_TRUE(ofFile == normal || ofFile == archive) << ofFile;
    EXPECT_EQ(FileAttributes::Get(scratch.MakeFolder(u"folder")), folder);
}

TEST(FileAttributes, AreThoseThatWereSet)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.WriteFile(u"a", "content"), scratch.MakeFolder(u"folder")}) {
        const std::uint32_t before = FileAttributes::Get(path);
        for (const std::uint32_t bits : {hidden, systemFile, hidden | systemFile, 0U}) {
            EXPECT_EQ(FileAttributes::Set(path, before | bits), 0U);
            EXPECT_EQ(FileAttributes::Get(path) & keptEverywhere, bits);
            EXPECT_EQ(FileAttributes::Get(path) & folder, before & folder);
        }
    }
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
}

TEST(FileAttributes, ReadOnlyIsSetAndClearedWithoutTheOthers)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    ASSERT_EQ(FileAttributes::Set(path, hidden), 0U);
    EXPECT_EQ(FileAttributes::Set(path, FileAttributes::Get(path) | readOnly), 0U);
    EXPECT_TRUE(FileAttributes::IsReadOnly(path));
    EXPECT_EQ(FileAttributes::Get(path) & (keptEverywhere | readOnly), hidden | readOnly);
    // Other attributes of a read-only file may be changed.
    EXPECT_EQ(FileAttributes::Set(path, FileAttributes::Get(path) | systemFile), 0U);
    EXPECT_EQ(FileAttributes::Get(path) & (keptEverywhere | readOnly), hidden | systemFile | readOnly);
    EXPECT_EQ(FileAttributes::Set(path, FileAttributes::Get(path) & ~readOnly), 0U);
    EXPECT_FALSE(FileAttributes::IsReadOnly(path));
    EXPECT_EQ(FileAttributes::Get(path) & keptEverywhere, hidden | systemFile);
}

TEST(FileAttributes, OfAMissingFileAreUnknownAndNotSet)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a");
    for (const CString& path : {scratch.Path(u"missing"), scratch.Path(u"a/below"), CString()}) {
        EXPECT_EQ(FileAttributes::Get(path), FileAttributes::unknown);
        EXPECT_NE(FileAttributes::Set(path, hidden), 0U);
        EXPECT_NE(FileAttributes::Set(path, FileAttributes::unknown), 0U);
    }
    EXPECT_FALSE(scratch.Has(u"missing"));
}

TEST(FileAttributes, UnknownOnesAreNotWritten)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const std::uint32_t before = FileAttributes::Get(path);
    for (const std::uint32_t bit : {0U, readOnly, hidden, archive, 0x2000U})
        EXPECT_NE(FileAttributes::Set(path, FileAttributes::unknown & ~bit), 0U);
    EXPECT_EQ(FileAttributes::Get(path), before);
}

TEST(FileAttributes, LiftedReadOnlyLastsAsLongAsItsObject)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    VyrTests::SetReadOnly(path, true);
    const std::uint32_t before = FileAttributes::Get(path);
    {
        const FileAttributes::LiftedReadOnly lifted(path);
        EXPECT_FALSE(FileAttributes::IsReadOnly(path));
    }
    EXPECT_EQ(FileAttributes::Get(path), before);
    VyrTests::SetReadOnly(path, false);
    const std::uint32_t writable = FileAttributes::Get(path);
    {
        const FileAttributes::LiftedReadOnly lifted(path);
    }
    EXPECT_EQ(FileAttributes::Get(path), writable);
    const FileAttributes::LiftedReadOnly ofNothing(scratch.Path(u"missing"));
}

TEST(FileAttributes, MissingFileIsNotReadOnly)
{
    const ScratchFolder scratch;
    constexpr char16_t withNul[] = u"a\0b";
    VyrTests::SetReadOnly(scratch.WriteFile(u"a"), true);
    EXPECT_FALSE(FileAttributes::IsReadOnly(scratch.Path(u"missing")));
    EXPECT_FALSE(FileAttributes::IsReadOnly(scratch.Path(u"a/below")));
    EXPECT_FALSE(FileAttributes::IsReadOnly(u""));
    EXPECT_FALSE(FileAttributes::IsReadOnly(scratch.Path(u"") + CString(std::u16string_view(withNul, 3))));
}
