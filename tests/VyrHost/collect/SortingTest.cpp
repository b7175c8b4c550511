#include <VyrHost/collect/Sorting.h>

#include <VyrHost/collect/CollectEntries.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>
#include <tests/support/Links.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

using namespace VyrHost::Collect;
using namespace VyrHost::Model;
using namespace VyrTests;

namespace {

class Sorting : public testing::Test
{
protected:
    /// The names in the order that `settings` give to `names`.
    [[nodiscard]] std::vector<std::string> Sorted(const std::vector<const char16_t*>& names, SortKey key,
                                                  bool isDescending = false) const
    {
        SourceSettings sources;
        for (const char16_t* const name : names)
            sources.paths.push_back(m_folder.Path(name));
        CollectedEntries collected = CollectEntries(sources);
        Sort(collected.list, {key, isDescending});
        std::vector<std::string> sorted;
        for (std::uint32_t index = 0; index < collected.list.entries.size(); ++index) {
            const Entry& entry = collected.list.entries[index];
            sorted.push_back(VyrPlatform::Encoding::ToUtf8(entry.name));
            if (const NameRecord* const record = collected.list.folders[entry.folder].names.Find(entry.name)) {
                EXPECT_EQ(record->owner, index);
            }
        }
        return sorted;
    }

    void SetModified(std::u16string_view name, int year) const
    {
        using namespace std::chrono;
        const sys_seconds moment = sys_days{std::chrono::year{year} / 6 / 1};
        std::filesystem::last_write_time(ToStdPath(m_folder.Path(name)), file_clock::from_sys(moment));
    }

    ScratchFolder m_folder;
};

using Strings = std::vector<std::string>;

} // namespace

TEST_F(Sorting, KeepsOrReversesTheGivenOrder)
{
    for (const char16_t* const name : {u"b", u"a", u"c"})
        m_folder.WriteFile(name);
    EXPECT_EQ(Sorted({u"b", u"a", u"c"}, SortKey::Given), (Strings{"b", "a", "c"}));
    EXPECT_EQ(Sorted({u"b", u"a", u"c"}, SortKey::Given, true), (Strings{"c", "a", "b"}));
}

TEST_F(Sorting, SortsByNameInNaturalOrder)
{
    for (const char16_t* const name : {u"n10", u"n9", u"N1"})
        m_folder.WriteFile(name);
    EXPECT_EQ(Sorted({u"n10", u"n9", u"N1"}, SortKey::Name), (Strings{"N1", "n9", "n10"}));
    EXPECT_EQ(Sorted({u"n10", u"n9", u"N1"}, SortKey::Name, true), (Strings{"n10", "n9", "N1"}));
}

TEST_F(Sorting, SortsBySizeAndThenByName)
{
    m_folder.WriteFile(u"big", "12345");
    m_folder.WriteFile(u"b2", "12");
    m_folder.WriteFile(u"b10", "12");
    EXPECT_EQ(Sorted({u"big", u"b10", u"b2"}, SortKey::Size), (Strings{"b2", "b10", "big"}));
    EXPECT_EQ(Sorted({u"b10", u"b2", u"big"}, SortKey::Size, true), (Strings{"big", "b2", "b10"}));
}

TEST_F(Sorting, SortsByTheDateOfTheLastChange)
{
    for (const char16_t* const name : {u"new", u"old", u"older"})
        m_folder.WriteFile(name);
    SetModified(u"new", 2020);
    SetModified(u"old", 2010);
    SetModified(u"older", 1999);
    EXPECT_EQ(Sorted({u"new", u"older", u"old"}, SortKey::Modified), (Strings{"older", "old", "new"}));
    EXPECT_EQ(Sorted({u"older", u"new", u"old"}, SortKey::Modified, true), (Strings{"new", "old", "older"}));
}

TEST_F(Sorting, SortsByTheDateOfThePictureWithUndatedOnesLast)
{
    PictureFacts facts;
    facts.dateTimeOriginal = "2020:01:01 00:00:01";
    m_folder.WriteFile(u"late.jpg", BuildJpeg(facts));
    facts.dateTimeOriginal = "2020:01:01 00:00:00";
    m_folder.WriteFile(u"soon.jpg", BuildJpeg(facts));
    m_folder.WriteFile(u"none.jpg", "none");
    EXPECT_EQ(Sorted({u"none.jpg", u"late.jpg", u"soon.jpg"}, SortKey::Taken),
              (Strings{"soon.jpg", "late.jpg", "none.jpg"}));
    EXPECT_EQ(Sorted({u"none.jpg", u"soon.jpg", u"late.jpg"}, SortKey::Taken, true),
              (Strings{"late.jpg", "soon.jpg", "none.jpg"}));
}

TEST_F(Sorting, MissingEntriesComeLast)
{
    m_folder.WriteFile(u"there");
    EXPECT_EQ(Sorted({u"missing", u"there"}, SortKey::Size), (Strings{"there", "missing"}));
    EXPECT_EQ(Sorted({u"missing", u"there"}, SortKey::Modified, true), (Strings{"there", "missing"}));
    if (const std::string why = MakeLink(m_folder.Path(u"nothing"), m_folder.Path(u"dangling")); !why.empty())
        GTEST_SKIP() << why;
    for (const bool isDescending : {false, true})
        EXPECT_EQ(Sorted({u"dangling", u"there"}, SortKey::Modified, isDescending), (Strings{"there", "dangling"}));
}
