#include <VyrPlatform/files/FolderListing.h>
#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>

using VyrPlatform::FolderListing;
using VyrPlatform::FileSystem::Kind;
using VyrTests::ScratchFolder;

namespace {

std::multiset<CString> Names(const CString& path)
{
    std::multiset<CString> names;
    FolderListing listing(path);
    while (listing.Next())
        names.insert(listing.Name());
    EXPECT_EQ(listing.Error(), 0U);
    return names;
}

} // namespace

TEST(FolderListing, GivesEachEntryOnceWithItsKind)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a.txt", "content");
    scratch.WriteFile(u".hidden");
    scratch.WriteFile(u"sub/inner.txt");
    std::map<CString, Kind> entries;
    FolderListing listing(scratch.Path());
    while (listing.Next()) {
        EXPECT_TRUE(entries.emplace(listing.Name(), listing.Kind()).second);
        EXPECT_FALSE(listing.IsLink());
    }
    EXPECT_EQ(listing.Error(), 0U);
    const std::map<CString, Kind> expected = {{u"a.txt", Kind::File}, {u".hidden", Kind::File}, {u"sub", Kind::Folder}};
    EXPECT_EQ(entries, expected);
}

TEST(FolderListing, StaysAtItsEnd)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a");
    FolderListing listing(scratch.Path());
    EXPECT_TRUE(listing.Next());
    EXPECT_FALSE(listing.Next());
    EXPECT_FALSE(listing.Next());
    EXPECT_EQ(listing.Error(), 0U);
}

TEST(FolderListing, EmptyFolderHasNoEntries)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(Names(scratch.Path()).empty());
}

TEST(FolderListing, GivesDotsOnRequest)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a");
    std::multiset<CString> names;
    for (FolderListing listing(scratch.Path(), FolderListing::Dots::Given); listing.Next();)
        names.insert(listing.Name());
    EXPECT_EQ(names, (std::multiset<CString>{u".", u"..", u"a"}));
}

TEST(FolderListing, TakesASeparatorAtTheEnd)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/a");
    EXPECT_EQ(Names(scratch.Path(u"folder") + CString(VyrPlatform::FileSystem::Separator(), 1)),
              std::multiset<CString>{u"a"});
}

TEST(FolderListing, GivesTheReasonWhenAFolderDoesNotOpen)
{
    const ScratchFolder scratch;
    constexpr char16_t withNul[] = u"folder\0b";
    scratch.WriteFile(u"folder/a");
    for (const CString& path : {scratch.Path(u"missing"), scratch.WriteFile(u"file"), CString(),
                                scratch.Path(u"") + CString(std::u16string_view(withNul, 8))}) {
        FolderListing listing(path);
        EXPECT_FALSE(listing.Next());
        EXPECT_NE(listing.Error(), 0U);
        EXPECT_TRUE(listing.Name().IsEmpty());
    }
}

TEST(FolderListing, PatternCharactersAreNotPatterns)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/a");
    FolderListing listing(scratch.Path(u"fold*"));
    EXPECT_FALSE(listing.Next());
    EXPECT_NE(listing.Error(), 0U);
}

TEST(FolderListing, GivesThousandsOfEntries)
{
    const ScratchFolder scratch;
    constexpr int count = 1200;
    for (int number = 0; number < count; ++number) {
        CString name;
        name.Format(u"file with a rather long name %06d.jpg", number);
        scratch.WriteFile(name);
    }
    const std::multiset<CString> names = Names(scratch.Path());
    EXPECT_EQ(names.size(), static_cast<std::size_t>(count));
    EXPECT_EQ(names.count(u"file with a rather long name 000000.jpg"), 1U);
    EXPECT_EQ(names.count(u"file with a rather long name 001199.jpg"), 1U);
    EXPECT_EQ(std::set<CString>(names.begin(), names.end()).size(), static_cast<std::size_t>(count));
}

TEST(FolderListing, GivesLongAndForeignNames)
{
    const ScratchFolder scratch;
    const std::multiset<CString> expected = {CString(u'n', 255), u"写真 001.jpg", u"\U0001F4F7"};
    for (const CString& name : expected)
        scratch.WriteFile(name);
    EXPECT_EQ(Names(scratch.Path()), expected);
}

TEST(FolderListing, EntriesMayGoWhileTheyAreWalked)
{
    const ScratchFolder scratch;
    for (const CString name : {u"a", u"b", u"c"})
        scratch.WriteFile(name);
    std::multiset<CString> names;
    for (FolderListing listing(scratch.Path()); listing.Next();) {
        names.insert(listing.Name());
        std::filesystem::remove(VyrTests::ToStdPath(scratch.Path(listing.Name())));
    }
    EXPECT_EQ(names, (std::multiset<CString>{u"a", u"b", u"c"}));
}

TEST(FolderListing, GivesTheKindOfALinksTarget)
{
    const ScratchFolder scratch;
    const CString links = scratch.MakeFolder(u"links");
    if (const std::string reason = VyrTests::MakeLink(scratch.WriteFile(u"target/file"), scratch.Path(u"links/file"));
        !reason.empty())
        GTEST_SKIP() << reason;
    ASSERT_EQ(VyrTests::MakeLink(scratch.Path(u"target"), scratch.Path(u"links/folder")), "");
    ASSERT_EQ(VyrTests::MakeLink(scratch.Path(u"nothing"), scratch.Path(u"links/nothing")), "");
    std::map<CString, Kind> entries;
    for (FolderListing listing(links); listing.Next();) {
        entries.emplace(listing.Name(), listing.Kind());
        EXPECT_TRUE(listing.IsLink());
    }
    const std::map<CString, Kind> expected = {
        {u"file", Kind::File}, {u"folder", Kind::Folder}, {u"nothing", Kind::Other}};
    EXPECT_EQ(entries, expected);
}
