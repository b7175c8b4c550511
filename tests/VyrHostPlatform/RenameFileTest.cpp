// RenameFile: renames that never replace anything, and one that replaces a file.
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrHostPlatform/RenameFile.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace VyrHostPlatform;
using namespace VyrPlatform;
using VyrPlatform::FileSystem::Kind;
using VyrTests::ScratchFolder;
using VyrTests::ToStdPath;
namespace fs = std::filesystem;

TEST(RenameNoReplace, RenamesFilesAndFolders)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a", "content");
    scratch.WriteFile(u"folder/x", "inside");
    scratch.MakeFolder(u"other");
    EXPECT_EQ(RenameNoReplace(file, scratch.Path(u"other/b")), 0u);
    EXPECT_EQ(RenameNoReplace(scratch.Path(u"folder"), scratch.Path(u"renamed")), 0u);
    EXPECT_EQ(scratch.ReadFile(u"other/b"), "content");
    EXPECT_EQ(scratch.ReadFile(u"renamed/x"), "inside");
    EXPECT_FALSE(scratch.Has(u"a"));
    EXPECT_FALSE(scratch.Has(u"folder"));
}

TEST(RenameNoReplace, ReplacesNothing)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"file", "1");
    scratch.WriteFile(u"taken", "2");
    scratch.MakeFolder(u"folder");
    scratch.MakeFolder(u"empty");
    for (const char16_t* from : {u"file", u"folder"}) {
        for (const char16_t* to : {u"taken", u"empty"}) {
            const std::uint32_t error = RenameNoReplace(scratch.Path(from), scratch.Path(to));
            EXPECT_NE(error, 0u);
            EXPECT_TRUE(IsTargetTaken(error)) << error;
            EXPECT_FALSE(IsOtherFileSystem(error));
        }
    }
    EXPECT_EQ(scratch.ReadFile(u"file"), "1");
    EXPECT_EQ(scratch.ReadFile(u"taken"), "2");
    EXPECT_TRUE(scratch.Has(u"folder"));
    EXPECT_TRUE(scratch.Has(u"empty"));
}

TEST(RenameNoReplace, RefusesAnotherLinkToTheSameFile)
{
    const ScratchFolder scratch;
    const CString a = scratch.WriteFile(u"a");
    fs::create_hard_link(ToStdPath(a), ToStdPath(scratch.Path(u"b")));
    EXPECT_TRUE(IsTargetTaken(RenameNoReplace(a, scratch.Path(u"b"))));
    EXPECT_TRUE(scratch.Has(u"a"));
    EXPECT_TRUE(scratch.Has(u"b"));
}

TEST(RenameNoReplace, FailsForMissingEntries)
{
    const ScratchFolder scratch;
    const CString a = scratch.WriteFile(u"a");
    const std::uint32_t missingSource = RenameNoReplace(scratch.Path(u"nothing"), scratch.Path(u"b"));
    EXPECT_NE(missingSource, 0u);
    EXPECT_FALSE(IsTargetTaken(missingSource));
    EXPECT_NE(RenameNoReplace(a, scratch.Path(u"no folder/b")), 0u);
    EXPECT_NE(RenameNoReplace(a, scratch.Path(CString(u'x', 300))), 0u);
    EXPECT_NE(RenameNoReplace(a, u""), 0u);
    EXPECT_TRUE(scratch.Has(u"a"));
}

TEST(RenameNoReplace, DoesNotMoveAFolderIntoItself)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/x", "inside");
    EXPECT_NE(RenameNoReplace(scratch.Path(u"folder"), scratch.Path(u"folder/below")), 0u);
    EXPECT_EQ(scratch.ReadFile(u"folder/x"), "inside");
}

TEST(RenameNoReplace, TakesPathsBeyondTheOldLimit)
{
    const ScratchFolder scratch;
    const CString deep = CString(u'd', 120) + u"/" + CString(u'e', 120);
    scratch.WriteFile(deep + u"/a", "deep");
    EXPECT_EQ(RenameNoReplace(scratch.Path(deep + u"/a"), scratch.Path(deep + u"/" + CString(u'b', 100))), 0u);
    EXPECT_EQ(scratch.ReadFile(deep + u"/" + CString(u'b', 100)), "deep");
}

TEST(RenameOver, ReplacesAFileOnly)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"file", "1");
    EXPECT_NE(RenameOver(file, scratch.Path(u"nothing")), 0u);
    EXPECT_NE(RenameOver(file, scratch.MakeFolder(u"folder")), 0u);
    const CString taken = scratch.WriteFile(u"taken", "2");
    EXPECT_NE(RenameOver(scratch.Path(u"nothing"), taken), 0u);
    EXPECT_EQ(scratch.ReadFile(u"taken"), "2");
    EXPECT_EQ(RenameOver(file, taken), 0u);
    EXPECT_EQ(scratch.ReadFile(u"taken"), "1");
    EXPECT_FALSE(scratch.Has(u"file"));
}

TEST(OpenFolder, ExaminesAndRenamesByName)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a", "content");
    scratch.MakeFolder(u"other");
    const OpenFolder folder(scratch.Path());
    const OpenFolder other(scratch.Path(u"other"));
    ASSERT_TRUE(folder.IsOpen());
    ASSERT_TRUE(other.IsOpen());
    EXPECT_EQ(folder.Look(u"a").identity, LookAtFile(scratch.Path(u"a")).identity);
    EXPECT_EQ(folder.Look(u"b").kind, Kind::Missing);
    EXPECT_EQ(folder.RenameNoReplace(u"a", folder, u"b"), 0u);
    EXPECT_EQ(folder.RenameNoReplace(u"b", other, u"c"), 0u);
    EXPECT_EQ(scratch.ReadFile(u"other/c"), "content");
    scratch.WriteFile(u"d");
    EXPECT_TRUE(IsTargetTaken(folder.RenameNoReplace(u"d", other, u"c")));
}

TEST(OpenFolder, MakesAndRemovesFolders)
{
    const ScratchFolder scratch;
    const OpenFolder folder(scratch.Path());
    EXPECT_EQ(folder.MakeFolder(u"new"), 0u);
    EXPECT_EQ(folder.Look(u"new").kind, Kind::Folder);
    EXPECT_NE(folder.MakeFolder(u"new"), 0u);
    scratch.WriteFile(u"new/x");
    EXPECT_NE(folder.RemoveEmptyFolder(u"new"), 0u);
    EXPECT_TRUE(scratch.Has(u"new/x"));
    fs::remove(ToStdPath(scratch.Path(u"new/x")));
    EXPECT_EQ(folder.RemoveEmptyFolder(u"new"), 0u);
    EXPECT_FALSE(scratch.Has(u"new"));
    scratch.WriteFile(u"file");
    EXPECT_NE(folder.RemoveEmptyFolder(u"file"), 0u);
    EXPECT_TRUE(scratch.Has(u"file"));
}

TEST(OpenFolder, GivesTheReasonWhenItDoesNotOpen)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"file");
    for (const char16_t* name : {u"nothing", u"file"}) {
        const OpenFolder folder(scratch.Path(name));
        EXPECT_FALSE(folder.IsOpen());
        EXPECT_NE(folder.Error(), 0u);
    }
}

TEST(OpenFolder, DropsNoNameOfAnotherFile)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a", "same");
    scratch.WriteFile(u"b", "same");
    const OpenFolder folder(scratch.Path());
    EXPECT_NE(folder.DropSecondName(u"a", folder, u"b"), 0u);
    EXPECT_NE(folder.DropSecondName(u"a", folder, u"a"), 0u);
    EXPECT_NE(folder.DropSecondName(u"nothing", folder, u"a"), 0u);
    EXPECT_TRUE(scratch.Has(u"a"));
    EXPECT_TRUE(scratch.Has(u"b"));
    // Two files of two names each, of which neither is a second name of the other.
    for (const char16_t* const name : {u"a", u"b"})
        fs::create_hard_link(ToStdPath(scratch.Path(name)), ToStdPath(scratch.Path(CString(name) + u"2")));
    EXPECT_NE(folder.DropSecondName(u"a", folder, u"b"), 0u);
    EXPECT_NE(folder.DropSecondName(u"b2", folder, u"a2"), 0u);
    for (const char16_t* const name : {u"a", u"a2", u"b", u"b2"})
        EXPECT_TRUE(scratch.Has(name));
}

} // namespace
