// The entries of a folder, and whether another one follows.
#include <VyrPlatform/files/CFileFind.h>
#include <VyrPlatform/files/FileSystem.h>
#include <tests/support/Describe.h>
#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <map>
#include <set>

using VyrTests::ScratchFolder;

namespace {

const CString separator(VyrPlatform::FileSystem::Separator(), 1);

std::multiset<CString> Names(const CString& pattern)
{
    std::multiset<CString> names;
    CFileFind finder;
    for (bool more = finder.FindFile(pattern); more;) {
        more = finder.FindNextFile();
        names.insert(finder.GetFileName());
    }
    return names;
}

} // namespace

TEST(CFileFind, GivesEveryEntryAndDotsOnce)
{
    const ScratchFolder scratch;
    for (const CString name : {u"a.txt", u"no extension", u".hidden", u"a.b.c"})
        scratch.WriteFile(name);
    scratch.MakeFolder(u"folder");
    const std::multiset<CString> expected = {u".", u"..", u"a.txt", u"no extension", u".hidden", u"a.b.c", u"folder"};
    EXPECT_EQ(Names(scratch.Path(u"*.*")), expected);
    EXPECT_EQ(Names(scratch.Path(u"*")), expected);
}

TEST(CFileFind, EmptyFolderHasOnlyDots)
{
    const ScratchFolder scratch;
    EXPECT_EQ(Names(scratch.Path(u"*.*")), (std::multiset<CString>{u".", u".."}));
}

TEST(CFileFind, RecognisesTheLastEntry)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a");
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(scratch.Path(u"*.*")));
    EXPECT_TRUE(finder.FindNextFile());
    EXPECT_TRUE(finder.FindNextFile());
    EXPECT_FALSE(finder.FindNextFile());
    const CString last = finder.GetFileName();
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(finder.GetFileName(), last);
}

TEST(CFileFind, GivesNamePathAndRoot)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a.txt");
    CFileFind finder;
    for (bool more = finder.FindFile(scratch.Path(u"*.*")); more;) {
        more = finder.FindNextFile();
        EXPECT_EQ(finder.GetRoot(), scratch.Path());
        EXPECT_EQ(finder.GetFilePath(), scratch.Path() + separator + finder.GetFileName());
    }
}

TEST(CFileFind, RecognisesFoldersAndDots)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a.txt");
    scratch.WriteFile(u"..a");
    scratch.MakeFolder(u"folder");
    std::map<CString, std::pair<bool, bool>> entries;
    CFileFind finder;
    for (bool more = finder.FindFile(scratch.Path(u"*.*")); more;) {
        more = finder.FindNextFile();
        entries[finder.GetFileName()] = {finder.IsDirectory(), finder.IsDots()};
    }
    const std::map<CString, std::pair<bool, bool>> expected = {{u".", {true, true}},
                                                               {u"..", {true, true}},
                                                               {u"a.txt", {false, false}},
                                                               {u"..a", {false, false}},
                                                               {u"folder", {true, false}}};
    EXPECT_EQ(entries, expected);
}

TEST(CFileFind, LinkToAFolderIsNoFolder)
{
    const ScratchFolder scratch;
    const CString folder = scratch.MakeFolder(u"folder");
    const CString links = scratch.MakeFolder(u"links");
    if (const std::string reason = VyrTests::MakeLink(folder, scratch.Path(u"links/link")); !reason.empty())
        GTEST_SKIP() << reason;
    bool isFound = false;
    CFileFind finder;
    for (bool more = finder.FindFile(links + separator + u"*.*"); more;) {
        more = finder.FindNextFile();
        if (finder.IsDots())
            continue;
        isFound = true;
        EXPECT_EQ(finder.GetFileName(), u"link");
        EXPECT_FALSE(finder.IsDirectory());
    }
    EXPECT_TRUE(isFound);
}

TEST(CFileFind, FindsNothingWithoutAFolder)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"file");
    constexpr char16_t withNul[] = u"fol\0der";
    const CString folderWithNul = scratch.Path(u"") + CString(std::u16string_view(withNul, 7));
    for (const CString& folder : {scratch.Path(u"missing"), scratch.Path(u"file"), folderWithNul}) {
        CFileFind finder;
        EXPECT_FALSE(finder.FindFile(folder + separator + u"*.*"));
        EXPECT_FALSE(finder.FindNextFile());
        EXPECT_EQ(finder.GetFileName(), u"");
        EXPECT_FALSE(finder.IsDirectory());
        EXPECT_FALSE(finder.IsDots());
    }
}

TEST(CFileFind, OtherPatternsMatchNothing)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a.txt");
    for (const CString& pattern : {scratch.Path(), scratch.Path(u"a.txt"), scratch.Path(u"*.txt"), CString()})
        EXPECT_TRUE(Names(pattern).empty());
}

TEST(CFileFind, RootFolderKeepsItsSeparator)
{
    const ScratchFolder scratch;
    CString root = scratch.Path();
    root = root.Left(root.Find(separator) + 1);
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(root + u"*.*"));
    EXPECT_EQ(finder.GetRoot(), root);
    static_cast<void>(finder.FindNextFile());
    EXPECT_EQ(finder.GetFilePath(), root + finder.GetFileName());
}

TEST(CFileFind, SearchesTheCurrentFolderWithoutOneInThePattern)
{
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(u"*.*"));
    EXPECT_EQ(finder.GetRoot(), u"");
    static_cast<void>(finder.FindNextFile());
    EXPECT_EQ(finder.GetFilePath(), finder.GetFileName());
}

TEST(CFileFind, SearchesAgainAfterClosing)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"one/a");
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(scratch.Path(u"*.*")));
    static_cast<void>(finder.FindNextFile());
    finder.Close();
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(finder.GetRoot(), u"");
    ASSERT_TRUE(finder.FindFile(scratch.Path(u"one/*.*")));
    EXPECT_EQ(finder.GetRoot(), scratch.Path(u"one"));
    EXPECT_FALSE(finder.FindFile(scratch.Path(u"missing/*.*")));
    EXPECT_FALSE(finder.FindNextFile());
}
