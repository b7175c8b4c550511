// Trees of keys in memory, shown by root keys on Linux.
#include <tests/support/RegistryTree.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/LinuxRegistry.h>

#include <gtest/gtest.h>

using namespace VyrPlatform::Registry;
using VyrTests::KeyNames;

TEST(MemoryTree, RootKeysAreEmptyAtFirst)
{
    for (const Handle root : {HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE, HKEY_USERS,
                              HKEY_PERFORMANCE_DATA, HKEY_CURRENT_CONFIG}) {
        EXPECT_EQ(Key::Open(root, u"", Access::Read).GetError(), Error::notFound);
        EXPECT_EQ(Key::Create(root, u"x").GetError(), Error::notFound);
        EXPECT_EQ(EnumerateKey(root, 0, 260).error, Error::notFound);
    }
}

TEST(MemoryTree, IsShownUntilSomethingElseIs)
{
    MemoryTree first;
    MemoryTree second;
    EXPECT_TRUE(first.AddKey(u"First"));
    EXPECT_TRUE(second.AddKey(u"Second"));
    ShowTree(HKEY_USERS, first);
    EXPECT_EQ(KeyNames(HKEY_USERS), (std::vector<CString>{u"First"}));
    const Key open = Key::Open(HKEY_USERS, u"", Access::Read);
    ShowTree(HKEY_USERS, second);
    EXPECT_EQ(KeyNames(HKEY_USERS), (std::vector<CString>{u"Second"}));
    EXPECT_EQ(KeyNames(open.Get()), (std::vector<CString>{u"First"}));
    ShowNothing(HKEY_USERS);
    EXPECT_EQ(EnumerateKey(HKEY_USERS, 0, 260).error, Error::notFound);
    EXPECT_EQ(KeyNames(open.Get()), (std::vector<CString>{u"First"}));
}

TEST(MemoryTree, CopiesAreTheSameTree)
{
    MemoryTree tree;
    MemoryTree copy = tree;
    EXPECT_TRUE(copy.AddKey(u"Key"));
    ShowTree(HKEY_USERS, tree);
    EXPECT_EQ(KeyNames(HKEY_USERS), (std::vector<CString>{u"Key"}));
    ShowNothing(HKEY_USERS);
}

TEST(MemoryTree, KeepsTheGivenTime)
{
    MemoryTree tree;
    EXPECT_TRUE(tree.SetLastWrite(u"A\\B", 123'456'789));
    ShowTree(HKEY_USERS, tree);
    EXPECT_EQ(GetLastWrite(Key::Open(HKEY_USERS, u"A\\B", Access::Read).Get()), 123'456'789);
    ShowNothing(HKEY_USERS);
}

TEST(MemoryTree, NamesAndLevelsHaveTheirLimits)
{
    MemoryTree tree;
    EXPECT_TRUE(tree.AddKey(CString(u'x', 255)));
    EXPECT_FALSE(tree.AddKey(CString(u'x', 256)));
    CString path;
    for (int level = 0; level < 512; ++level)
        path += u"k\\";
    EXPECT_TRUE(tree.AddKey(path));
    EXPECT_FALSE(tree.AddKey(path + u"k"));
    EXPECT_FALSE(tree.SetValue(path + u"k", u"v", 4, {}));
    EXPECT_FALSE(tree.SetLastWrite(path + u"k", 1));
    ShowTree(HKEY_USERS, tree);
    EXPECT_FALSE(Key::Create(HKEY_USERS, CString(u'y', 256)).IsOpen());
    EXPECT_TRUE(Key::Open(HKEY_USERS, path, Access::Read).IsOpen());
    ShowNothing(HKEY_USERS);
}

TEST(MemoryTree, LettersThatAreNotAsciiMeetNoneOfAscii)
{
    MemoryTree tree;
    EXPECT_TRUE(tree.AddKey(u"\x131"));
    EXPECT_TRUE(tree.AddKey(u"\x17F"));
    EXPECT_TRUE(tree.AddKey(u"straße"));
    ShowTree(HKEY_USERS, tree);
    EXPECT_FALSE(Key::Open(HKEY_USERS, u"I", Access::Read).IsOpen());
    EXPECT_FALSE(Key::Open(HKEY_USERS, u"S", Access::Read).IsOpen());
    EXPECT_FALSE(Key::Open(HKEY_USERS, u"STRASSE", Access::Read).IsOpen());
    EXPECT_TRUE(Key::Open(HKEY_USERS, u"STRAßE", Access::Read).IsOpen());
    ShowNothing(HKEY_USERS);
}

TEST(MemoryTree, SignsBetweenTheCasesSortBehindTheCapitals)
{
    MemoryTree tree;
    for (const CString name : {u"_a", u"za", u"Zb", u"[a"})
        EXPECT_TRUE(tree.AddKey(name));
    ShowTree(HKEY_USERS, tree);
    EXPECT_EQ(KeyNames(HKEY_USERS), (std::vector<CString>{u"za", u"Zb", u"[a", u"_a"}));
    ShowNothing(HKEY_USERS);
}

TEST(MemoryTree, PathThatBeginsWithASeparatorIsBad)
{
    MemoryTree tree;
    EXPECT_TRUE(tree.AddKey(u"Key"));
    ShowTree(HKEY_USERS, tree);
    EXPECT_EQ(Key::Open(HKEY_USERS, u"\\Key", Access::Read).GetError(), Error::badPathName);
    EXPECT_EQ(Key::Create(HKEY_USERS, u"\\Key").GetError(), Error::badPathName);
    EXPECT_EQ(RemoveTree(HKEY_USERS, u"\\Key"), Error::badPathName);
    ShowNothing(HKEY_USERS);
}
