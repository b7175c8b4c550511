#include <VyrHost/collect/CollectEntries.h>

#include <VyrHost/text/Errors.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/files/FileSystem.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <string>
#include <vector>

using namespace VyrHost::Collect;
using namespace VyrHost::Model;
using namespace VyrHost::Text;
using namespace VyrTests;
using VyrPlatform::FileSystem::Kind;

namespace {

class CollectingEntries : public testing::Test
{
protected:
    /// The collected paths, those below the scratch folder relative to it and with slashes.
    [[nodiscard]] std::vector<std::string> Paths(const SourceSettings& settings) const
    {
        const CollectedEntries collected = CollectEntries(settings);
        std::vector<std::string> paths;
        for (const Entry& entry : collected.list.entries) {
            const auto path = ToStdPath(collected.list.PathOf(entry)).lexically_relative(ToStdPath(m_folder.Path()));
            const std::u8string text = path.generic_u8string();
            paths.emplace_back(text.begin(), text.end());
        }
        return paths;
    }

    [[nodiscard]] SourceSettings Recursive(Pick pick = Pick::Files) const
    {
        SourceSettings settings;
        settings.paths = {m_folder.Path()};
        settings.recursive = true;
        settings.pick = pick;
        return settings;
    }

    [[nodiscard]] SourceSettings Named(std::initializer_list<const char16_t*> names) const
    {
        SourceSettings settings;
        for (const char16_t* const name : names)
            settings.paths.push_back(m_folder.Path(name));
        return settings;
    }

    ScratchFolder m_folder;
};

using Strings = std::vector<std::string>;

} // namespace

TEST_F(CollectingEntries, KeepsTheOrderGiven)
{
    for (const char16_t* const name : {u"a", u"b", u"c/d"})
        m_folder.WriteFile(name);
    EXPECT_EQ(Paths(Named({u"b", u"c", u"a"})), (Strings{"b", "c", "a"}));
}

TEST_F(CollectingEntries, RecursionGivesAFoldersFilesAndThenItsFoldersByName)
{
    for (const char16_t* const name : {u"z10", u"z9", u"b/y", u"b/c/x", u"a2/w", u"a10/v", u".h/u", u".g"})
        m_folder.WriteFile(name);
    m_folder.MakeFolder(u"empty");
    EXPECT_EQ(Paths(Recursive()), (Strings{"z9", "z10", "a2/w", "a10/v", "b/y", "b/c/x"}));
    EXPECT_EQ(Paths(Recursive(Pick::Folders)), (Strings{"a2", "a10", "b", "empty", "b/c"}));
    EXPECT_EQ(Paths(Recursive(Pick::All)),
              (Strings{"a2", "a10", "b", "empty", "z9", "z10", "a2/w", "a10/v", "b/c", "b/y", "b/c/x"}));
    SourceSettings settings = Recursive();
    settings.hidden = true;
    EXPECT_EQ(Paths(settings), (Strings{".g", "z9", "z10", ".h/u", "a2/w", "a10/v", "b/y", "b/c/x"}));
}

TEST_F(CollectingEntries, RecursionDoesNotFollowLinks)
{
    m_folder.WriteFile(u"real/a");
    std::error_code error;
    std::filesystem::create_directory_symlink(ToStdPath(m_folder.Path()), ToStdPath(m_folder.Path(u"real/up")), error);
    if (error)
        GTEST_SKIP() << "this system lets no link to a folder be made: " << error.message();
    EXPECT_EQ(Paths(Recursive()), (Strings{"real/a"}));
}

TEST_F(CollectingEntries, AFolderIsAnEntryWithoutRecursion)
{
    m_folder.WriteFile(u"d/a");
    const CollectedEntries collected = CollectEntries(Named({u"d"}));
    ASSERT_EQ(collected.list.entries.size(), 1u);
    EXPECT_EQ(collected.list.entries[0].kind, Kind::Folder);
    EXPECT_EQ(collected.list.PathOf(collected.list.entries[0]), m_folder.Path(u"d"));
}

TEST_F(CollectingEntries, APathThatDoesNotExistIsAMissingEntry)
{
    const CollectedEntries collected = CollectEntries(Named({u"nothing", u"no folder/nothing"}));
    ASSERT_EQ(collected.list.entries.size(), 2u);
    EXPECT_EQ(collected.list.entries[0].kind, Kind::Missing);
    EXPECT_EQ(collected.list.entries[1].kind, Kind::Missing);
}

TEST_F(CollectingEntries, WildcardsMatchNames)
{
    for (const char16_t* const name : {u"a10.jpg", u"a9.jpg", u"b.jpeg", u".c.jpg", u"d.jpg/e"})
        m_folder.WriteFile(name);
    EXPECT_EQ(Paths(Named({u"*.jpg"})), (Strings{"a9.jpg", "a10.jpg", "d.jpg"}));
    EXPECT_EQ(Paths(Named({u"?.jpeg"})), (Strings{"b.jpeg"}));
}

TEST_F(CollectingEntries, AnEntryNamedAgainStaysWhereItWasNamedFirst)
{
    for (const char16_t* const name : {u"d/a", u"d/b", u"c"})
        m_folder.WriteFile(name);
    for (const char16_t* const again : {u"d/b", u"d/./b", u"d/../d/b", u"d/b*"})
        EXPECT_EQ(Paths(Named({u"d/b", again, u"d/a", again})), (Strings{"d/b", "d/a"}));
    EXPECT_EQ(Paths(Named({u"d/b", u"d/*"})), (Strings{"d/b", "d/a"}));
    SourceSettings settings = Named({u"d"});
    settings.paths.push_back(m_folder.Path());
    settings.recursive = true;
    EXPECT_EQ(Paths(settings), (Strings{"d/a", "d/b", "c"}));
}

TEST_F(CollectingEntries, ANameThatStandsForAnEntryOfItsOwnIsRefusedAgain)
{
    m_folder.WriteFile(u"d/a");
    for (const char16_t* const again : {u"d/a", u"d/./a"}) {
        SourceSettings settings = Named({u"d/a", again});
        settings.areNames = true;
        EXPECT_THROW((void)CollectEntries(settings), UsageError);
    }
}

TEST_F(CollectingEntries, NamingAFolderAndOneOfItsEntriesIsRefused)
{
    m_folder.WriteFile(u"d/e/a");
    EXPECT_THROW((void)CollectEntries(Named({u"d", u"d/e/a"})), UsageError);
    EXPECT_THROW((void)CollectEntries(Named({u"d/e/a", u"d/e"})), UsageError);
    m_folder.WriteFile(u"de/a");
    EXPECT_EQ(Paths(Named({u"d", u"de/a"})), (Strings{"d", "de/a"}));
}

TEST_F(CollectingEntries, RootsAndDotsAreRefused)
{
    for (const char16_t* const path : {u"", u"/", u"..", u"../", u"../.", u"./..", u"a/..", u"a/..//", u"/.."}) {
        SourceSettings settings;
        settings.paths = {path};
        EXPECT_THROW((void)CollectEntries(settings), UsageError) << testing::PrintToString(CString(path));
    }
}

TEST_F(CollectingEntries, DotsInANameAreNoParentFolder)
{
    for (const char16_t* const name : {u"..a", u"a..b", u"...a"})
        m_folder.WriteFile(name);
    EXPECT_EQ(Paths(Named({u"..a", u"./a..b", u"a/.././...a"})).size(), 3u);
}

TEST_F(CollectingEntries, KnowsKindsAndSplitsNamesAsTheEngineDoesByAskingTheSystem)
{
    using VyrLibraryFuncs::NameFuncs;
    for (const char16_t* const name : {u"a.b.c", u"noext", u".bashrc", u"..x.y", u"日本.語", u"d.e/f"})
        m_folder.WriteFile(name);
    m_folder.MakeFolder(u"folder.with.dots");
    m_folder.MakeFolder(u".hidden");
    SourceSettings settings = Recursive(Pick::All);
    settings.hidden = true;
    const CollectedEntries collected = CollectEntries(settings);
    ASSERT_EQ(collected.list.entries.size(), 9u);
    for (const Entry& entry : collected.list.entries) {
        const CString path = collected.list.PathOf(entry);
        EXPECT_EQ(entry.kind, VyrPlatform::FileSystem::Query(path).kind);
        const SplitName split = Split(path, entry);
        EXPECT_EQ(split.name, NameFuncs::GetFName(path));
        EXPECT_EQ(split.extension, NameFuncs::GetExtension(path));
    }
}
