// Listings of folders: in natural order, with every name that the disk distinguishes.
#include <VyrHost/model/FolderSet.h>

#include <VyrPlatform/files/FileSystem.h>

#include <gtest/gtest.h>
#include <tests/VyrHost/collect/ListedNames.h>
#include <tests/VyrHost/model/NaturalKey.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace VyrHost::Model;
using namespace VyrTests;
using VyrPlatform::FileSystem::Kind;
using VyrPlatform::FileSystem::WithSeparator;

TEST(ParentName, IsThatOfTheFolderSoManyLevelsUp)
{
    EXPECT_EQ(ParentName(u"/one/two/three.txt", 1), u"two");
    EXPECT_EQ(ParentName(u"/one/two/three.txt", 2), u"one");
    EXPECT_EQ(ParentName(u"/one/two/three.txt", 3), u"");
    EXPECT_EQ(ParentName(u"/one/two/three.txt", 1000000), u"");
    EXPECT_EQ(ParentName(u"/root.txt", 1), u"");
    EXPECT_EQ(ParentName(u"", 1), u"");
}

TEST(FolderSet, ListsAFolderInNaturalOrder)
{
    constexpr char16_t units[] = {u'0', u'0', u'1', u'2', u'9', u'a', u'b', u'z', u'-', u'~', u'.', u' ', u'\u00E9'};
    std::mt19937 random(17);
    for (const std::u16string start : {u"", u"img-00", u"9"}) {
        const ScratchFolder scratch;
        std::set<std::u16string> made;
        while (made.size() < 200) {
            std::u16string name = start;
            for (std::size_t length = 1 + random() % 9; length > 0; --length)
                name += units[random() % std::size(units)];
            // Windows allows no name that ends in a dot or a space.
            name += u'x';
            if (!made.insert(name).second)
                continue;
            if (made.size() % 5 == 0)
                scratch.MakeFolder(name);
            else
                scratch.WriteFile(name);
        }
        std::vector<std::u16string> expected(made.begin(), made.end());
        std::sort(expected.begin(), expected.end(),
                  [](const auto& left, const auto& right) { return NaturalKey(left) < NaturalKey(right); });
        FolderSet folders;
        const Folder& folder = folders[folders.Open(WithSeparator(scratch.Path()), u"shown/")];
        EXPECT_EQ(NamesIn(folder), expected);
    }
}

TEST(FolderSet, OrdersEqualNumbersByTheirCodeUnits)
{
    const ScratchFolder scratch;
    for (const char16_t* const name : {u"10", u"9", u"010", u"1", u"01", u"001", u"0", u"00", u"2a", u"02b", u"2"})
        scratch.WriteFile(name);
    FolderSet folders;
    EXPECT_EQ(
        NamesIn(folders[folders.Open(WithSeparator(scratch.Path()), u"")]),
        (std::vector<std::u16string>{u"0", u"00", u"001", u"01", u"1", u"2", u"2a", u"02b", u"9", u"010", u"10"}));
}

TEST(FolderSet, HasBothNamesThatDifferInTheirNormalForm)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"\u00E9t\u00E9.jpg");
    scratch.WriteFile(u"e\u0301te\u0301.jpg");
    FolderSet folders;
    Folder& folder = folders[folders.Open(WithSeparator(scratch.Path()), u"")];
    EXPECT_EQ(NamesIn(folder), (std::vector<std::u16string>{u"e\u0301te\u0301.jpg", u"\u00E9t\u00E9.jpg"}));
    EXPECT_NE(folder.names.Find(u"\u00E9t\u00E9.jpg"), folder.names.Find(u"e\u0301te\u0301.jpg"));
    EXPECT_EQ(folder.names.Find(u"\u00E9te\u0301.jpg"), nullptr);
}

TEST(FolderSet, HasTheEntryOfEachName)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"file");
    scratch.MakeFolder(u"folder");
    FolderSet folders;
    const std::uint32_t number = folders.Open(WithSeparator(scratch.Path()), u"shown/");
    Folder& folder = folders[number];
    EXPECT_EQ(folder.path, WithSeparator(scratch.Path()));
    EXPECT_EQ(folder.shown, u"shown/");
    EXPECT_TRUE(folder.exists);
    EXPECT_EQ(folder.error, 0u);
    ASSERT_NE(folder.names.Find(u"file"), nullptr);
    EXPECT_EQ(folder.names.Find(u"file")->kind, Kind::File);
    EXPECT_EQ(folder.names.Find(u"file")->owner, noEntry);
    ASSERT_NE(folder.names.Find(u"folder"), nullptr);
    EXPECT_EQ(folder.names.Find(u"folder")->kind, Kind::Folder);
    EXPECT_EQ(NamesIn(folder), (std::vector<std::u16string>{u"file", u"folder"}));
}

TEST(FolderSet, ListsAFolderOnceWhateverItsPath)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"inner/first");
    FolderSet folders;
    const CString path = WithSeparator(scratch.Path(u"inner"));
    const std::uint32_t number = folders.Open(path, u"inner/");
    scratch.WriteFile(u"inner/second");
    const std::uint32_t count = folders.Count();
    EXPECT_EQ(folders.Open(path, u"other/"), number);
    EXPECT_EQ(folders.Open(WithSeparator(scratch.Path()) + WithSeparator(u".") + WithSeparator(u"inner"), u""), number);
    EXPECT_EQ(folders.Count(), count);
    EXPECT_EQ(folders[number].path, path);
    EXPECT_EQ(folders[number].shown, u"inner/");
    EXPECT_EQ(NamesIn(folders[number]), std::vector<std::u16string>{u"first"});
}

TEST(FolderSet, DoesNotMoveFoldersInMemoryWhenMoreAreOpened)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"name");
    FolderSet folders;
    const std::uint32_t number = folders.Open(WithSeparator(scratch.Path()), u"");
    const Folder& first = folders[number];
    for (std::uint32_t inner = 1; inner <= 300; ++inner) {
        CString name;
        name.Format(u"%u", inner);
        EXPECT_EQ(folders.Open(WithSeparator(scratch.MakeFolder(name)), u""), number + inner);
    }
    EXPECT_EQ(folders.Count(), number + 301);
    EXPECT_EQ(&folders[number], &first);
    EXPECT_EQ(NamesIn(first), std::vector<std::u16string>{u"name"});
}

TEST(FolderSet, HasTheParentOfEachFolder)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"outer/inner/file");
    FolderSet folders;
    const std::uint32_t inner = folders.Open(WithSeparator(scratch.Path(u"outer/inner")), u"");
    const std::uint32_t outer = folders[inner].parent;
    EXPECT_EQ(folders[inner].name.View(), u"inner");
    EXPECT_EQ(folders[outer].name.View(), u"outer");
    EXPECT_EQ(folders[outer].path, WithSeparator(scratch.Path(u"outer")));
    // It is listed on demand.
    EXPECT_FALSE(folders[outer].wasOpened);
    EXPECT_TRUE(folders[outer].names.Records().empty());
    EXPECT_EQ(folders.Open(WithSeparator(scratch.Path(u"outer")), u"shown/"), outer);
    EXPECT_EQ(NamesIn(folders[outer]), std::vector<std::u16string>{u"inner"});
    EXPECT_EQ(folders[outer].shown, u"shown/");
    // The chain of parents ends at a root, whose name is its path.
    std::uint32_t root = outer;
    for (int steps = 0; folders[root].parent != noFolder; root = folders[root].parent) {
        EXPECT_LT(folders[root].parent, root);
        ASSERT_LT(++steps, 100);
    }
    EXPECT_EQ(folders[root].name.View(), folders[root].path.View());
    EXPECT_FALSE(folders[root].path.IsEmpty());
}

TEST(FolderSet, TreatsAMissingFolderAsEmpty)
{
    const ScratchFolder scratch;
    FolderSet folders;
    const Folder& folder = folders[folders.Open(WithSeparator(scratch.Path(u"missing")), u"missing/")];
    EXPECT_FALSE(folder.exists);
    EXPECT_TRUE(folder.names.Records().empty());
    EXPECT_EQ(folder.path, WithSeparator(scratch.Path(u"missing")));
}

} // namespace
