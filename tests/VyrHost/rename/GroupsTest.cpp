// Files that are renamed together.
#include <VyrHost/rename/Groups.h>

#include <VyrHost/collect/CollectEntries.h>

#include <gtest/gtest.h>
#include <tests/support/ScratchFolder.h>

#include <vector>

using namespace VyrHost::Collect;
using namespace VyrHost::Model;
using namespace VyrHost::Rename;
using namespace VyrTests;

namespace {

using Members = std::vector<std::vector<std::uint32_t>>;

Members MembersOf(const Groups& groups)
{
    Members all;
    for (std::size_t group = 0; group < groups.Count(); ++group) {
        const auto members = groups.Members(group);
        all.emplace_back(members.begin(), members.end());
        for (const std::uint32_t entry : members)
            EXPECT_EQ(groups.Of(entry), group);
    }
    return all;
}

class KeepingTogether : public testing::Test
{
protected:
    [[nodiscard]] CollectedEntries CollectNamed(std::initializer_list<const char16_t*> names) const
    {
        SourceSettings settings;
        for (const char16_t* const name : names)
            settings.paths.push_back(m_folder.Path(name));
        return CollectEntries(settings);
    }

    ScratchFolder m_folder;
};

} // namespace

TEST_F(KeepingTogether, FilesOfOneStemInOneFolderAreAGroup)
{
    for (const char16_t* const name : {u"a.raf", u"b.jpg", u"a.jpg", u"a", u"d/a.jpg", u"a.b.jpg"})
        m_folder.WriteFile(name);
    m_folder.MakeFolder(u"b");
    const CollectedEntries collected = CollectNamed({u"a.raf", u"b.jpg", u"b", u"a.jpg", u"d/a.jpg", u"a.b.jpg", u"a"});
    EXPECT_EQ(MembersOf(Groups::ByStem(collected.list)), (Members{{0, 3, 6}, {1}, {2}, {4}, {5}}));
    EXPECT_EQ(MembersOf(Groups::OfOne(collected.list)), (Members{{0}, {1}, {2}, {3}, {4}, {5}, {6}}));
}

TEST_F(KeepingTogether, SidecarsBelongToTheFileWhoseWholeNameTheyHave)
{
    const auto names = {u"x.JPG.xmp", u"x.JPG", u"x.CR2", u"x.CR2.xmp", u"x.CR2.xmp.bak", u"x.png.xmp", u"a.b"};
    for (const char16_t* const name : names)
        m_folder.WriteFile(name);
    const CollectedEntries collected = CollectNamed(names);
    // x.png does not exist, so x.png.xmp is a file of its own.
    const Groups groups = Groups::ByStem(collected.list);
    EXPECT_EQ(MembersOf(groups), (Members{{0, 1, 2, 3, 4}, {5}, {6}}));
    EXPECT_EQ(groups.MainFileOf(0), 1u);
    EXPECT_EQ(groups.MainFileOf(3), 2u);
    EXPECT_EQ(groups.MainFileOf(4), 3u);
    for (const std::uint32_t entry : {1u, 2u, 5u, 6u})
        EXPECT_EQ(groups.MainFileOf(entry), noEntry) << entry;
    EXPECT_EQ(Groups::OfOne(collected.list).MainFileOf(0), noEntry);
}

TEST_F(KeepingTogether, MissingEntriesAreInNoGroup)
{
    m_folder.WriteFile(u"a.jpg");
    const CollectedEntries collected = CollectNamed({u"a.raf", u"a.jpg"});
    EXPECT_EQ(MembersOf(Groups::ByStem(collected.list)), (Members{{0}, {1}}));
}

TEST(Groups, OfNothingAreNone)
{
    EXPECT_EQ(Groups::OfOne(EntryList()).Count(), 0u);
    EXPECT_EQ(Groups::ByStem(EntryList()).Count(), 0u);
}
