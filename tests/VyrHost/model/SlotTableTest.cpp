#include <VyrHost/model/SlotTable.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace VyrHost::Model;

std::u16string NumberText(std::uint32_t number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

TEST(SlotTable, IsEmptyAtFirst)
{
    const SlotTable<int> table;
    for (const PlanIndex folder : {PlanIndex{0}, PlanIndex{1}, none}) {
        EXPECT_EQ(table.Find(folder, u""), nullptr);
        EXPECT_EQ(table.Find(folder, u"name"), nullptr);
        EXPECT_EQ(table.Find({folder, InternedName()}), nullptr);
    }
}

TEST(SlotTable, DistinguishesFoldersAndNames)
{
    NamePool texts;
    SlotTable<std::string> table;
    const PlanIndex folders[] = {0, 1, 2, none - 1, none};
    const std::u16string names[] = {u"", u"a", u"A", u"b", u"ab", u"0", std::u16string(u"a\0", 2)};
    for (const PlanIndex folder : folders)
        for (std::size_t name = 0; name < std::size(names); ++name)
            table.Put({folder, texts.Intern(names[name])}, std::to_string(folder) + "/" + std::to_string(name));
    for (const PlanIndex folder : folders)
        for (std::size_t name = 0; name < std::size(names); ++name) {
            const std::string* const found = table.Find(folder, names[name]);
            ASSERT_NE(found, nullptr);
            EXPECT_EQ(*found, std::to_string(folder) + "/" + std::to_string(name));
            // By a place whose text is in another pool.
            NamePool others;
            EXPECT_EQ(table.Find({folder, others.Intern(names[name])}), found);
        }
    EXPECT_EQ(table.Find(3, u"a"), nullptr);
    EXPECT_EQ(table.Find(0, u"aa"), nullptr);
    EXPECT_EQ(table.Find(none, u"c"), nullptr);
}

TEST(SlotTable, KeepsItsValuesWhenMoreArePut)
{
    NamePool texts;
    SlotTable<int> table;
    EXPECT_EQ(table.Put({4, texts.Intern(u"x")}, 1), 1);
    EXPECT_EQ(table.Put({4, texts.Intern(u"x")}, 2), 1);
    EXPECT_EQ(table.Put({5, texts.Intern(u"x")}, 3), 3);
    EXPECT_EQ(*table.Find(4, u"x"), 1);
    // A value in the table can be changed.
    table.Put({4, texts.Intern(u"x")}, 0) = 9;
    EXPECT_EQ(*table.Find(4, u"x"), 9);
    EXPECT_EQ(table.Put({4, texts.Intern(u"x")}, 7), 9);
    EXPECT_EQ(*table.Find(5, u"x"), 3);
}

TEST(SlotTable, GrowsFromFewToMany)
{
    constexpr std::uint32_t count = 300'000;
    NamePool texts;
    SlotTable<std::uint32_t> table;
    for (std::uint32_t number = 0; number < count; ++number) {
        // Few folders, one of them much larger than the others.
        const PlanIndex folder = number % 3 == 0 ? number % 100 : none;
        ASSERT_EQ(table.Put({folder, texts.Intern(NumberText(number))}, number), number);
        // At each size it has the first, the last, and one between.
        for (const std::uint32_t earlier : {std::uint32_t{0}, number / 2, number}) {
            const std::uint32_t* const found = table.Find(earlier % 3 == 0 ? earlier % 100 : none, NumberText(earlier));
            ASSERT_NE(found, nullptr) << earlier << " of " << number;
            ASSERT_EQ(*found, earlier);
        }
        ASSERT_EQ(table.Find(folder, NumberText(number + 1)), nullptr);
    }
    for (std::uint32_t number = 0; number < count; ++number)
        ASSERT_EQ(*table.Find(number % 3 == 0 ? number % 100 : none, NumberText(number)), number);
}

TEST(SlotTable, FindsOneNameInManyFolders)
{
    constexpr PlanIndex count = 300'000;
    NamePool texts;
    const InternedName name = texts.Intern(u"IMG_0001.JPG");
    SlotTable<PlanIndex> table;
    for (PlanIndex folder = 0; folder < count; ++folder)
        table.Put({folder, name}, folder + 1);
    for (PlanIndex folder = 0; folder < count; ++folder)
        ASSERT_EQ(*table.Find(folder, u"IMG_0001.JPG"), folder + 1);
    EXPECT_EQ(table.Find(count, u"IMG_0001.JPG"), nullptr);
    EXPECT_EQ(table.Find(none, u"IMG_0001.JPG"), nullptr);
}

TEST(SlotTable, HasTheSameContentWhereverRoomIsReserved)
{
    for (const std::size_t before : {0u, 1u, 7u, 8u, 9u, 100u, 5000u})
        for (const std::size_t after : {0u, 1u, 64u, 1000u, 20'000u}) {
            NamePool texts;
            SlotTable<std::uint32_t> table;
            table.Reserve(before);
            const auto put = [&](std::uint32_t first, std::uint32_t last) {
                for (std::uint32_t number = first; number < last; ++number)
                    ASSERT_EQ(table.Put({number % 2, texts.Intern(NumberText(number))}, number), number);
            };
            put(0, 100);
            table.Reserve(after);
            put(100, 1000);
            table.Reserve(after);
            table.Reserve(0);
            for (std::uint32_t number = 0; number < 1000; ++number) {
                ASSERT_NE(table.Find(number % 2, NumberText(number)), nullptr) << before << " " << after;
                EXPECT_EQ(*table.Find(number % 2, NumberText(number)), number);
                EXPECT_EQ(table.Find(1 - number % 2, NumberText(number)), nullptr);
            }
        }
}

TEST(SlotTable, IsAMapOfPlaces)
{
    for (unsigned seed = 0; seed < 40; ++seed) {
        std::mt19937 random(seed);
        NamePool texts;
        SlotTable<std::uint32_t> table;
        std::map<std::pair<PlanIndex, std::u16string>, std::uint32_t> expected;
        const std::uint32_t variety = 1u << seed % 12;
        for (std::uint32_t round = 0; round < 4000; ++round) {
            const auto drawn = static_cast<std::uint32_t>(random());
            const PlanIndex folder = drawn % 5 == 0 ? none : drawn % 5 == 1 ? 0 : drawn % variety;
            const std::u16string name = NumberText(static_cast<std::uint32_t>(random()) % variety);
            const auto at = expected.find({folder, name});
            const std::uint32_t* const found = table.Find(folder, name);
            ASSERT_EQ(found != nullptr, at != expected.end());
            if (found) {
                ASSERT_EQ(*found, at->second);
            }
            if (drawn % 7 == 0)
                table.Reserve(drawn % 1000);
            if (drawn % 2 == 0) {
                const std::uint32_t there = expected.try_emplace({folder, name}, round).first->second;
                ASSERT_EQ(table.Put({folder, texts.Intern(name)}, round), there);
            }
        }
        for (const auto& [place, value] : expected)
            ASSERT_EQ(*table.Find(place.first, place.second), value);
    }
}

/// Puts `left` and then `right` into a new table, which must keep both.
void ExpectApart(const Place& left, const Place& right)
{
    SlotTable<int> table;
    table.Put(left, 1);
    EXPECT_EQ(table.Find(right), nullptr);
    EXPECT_EQ(table.Put(right, 2), 2);
    EXPECT_EQ(*table.Find(left), 1);
    EXPECT_EQ(*table.Find(right), 2);
}

/// Places whose hashes are equal in all bits that the table compares, so that only comparing the places distinguishes
/// them.
class MeetingHashes : public testing::Test
{
protected:
    /// The factor with which the table mixes them.
    static constexpr std::uint64_t Factor = 0x9E3779B97F4A7C15;

    static std::uint64_t HashOf(std::u16string_view name) { return std::hash<std::u16string_view>()(name); }
    /// The bits that a table of the smallest size compares: where a search begins, and the tag.
    static std::uint64_t SeenOf(std::uint64_t mixed) { return mixed >> 32 << 4 | (mixed >> 20 & 15); }

    [[nodiscard]] InternedName Keep(std::uint32_t number) { return m_texts.Intern(NumberText(number)); }

    NamePool m_texts;
};

TEST_F(MeetingHashes, DoNotConfuseOneNameInTwoFolders)
{
    // Multiples of the factor by Fibonacci numbers are close together.
    constexpr std::uint64_t step = 2'971'215'073;
    const InternedName name = m_texts.Intern(u"IMG_0001.JPG");
    const std::uint64_t hash = HashOf(name);
    std::size_t pairs = 0;
    for (PlanIndex folder = 0; folder < 10'000; ++folder) {
        const std::uint64_t left = hash ^ folder;
        const std::uint64_t right = left + step;
        if (left >> 32 != right >> 32 || SeenOf(left * Factor) != SeenOf(right * Factor))
            continue;
        ++pairs;
        ExpectApart({folder, name}, {static_cast<PlanIndex>(hash ^ right), name});
    }
    EXPECT_GT(pairs, 0u);
}

TEST_F(MeetingHashes, DoNotConfuseTwoNames)
{
    constexpr std::uint32_t count = 1'000'000;
    constexpr PlanIndex folder = 3;
    std::vector<std::pair<std::uint64_t, std::uint32_t>> seen;
    std::vector<std::pair<std::uint64_t, std::uint32_t>> hashes;
    for (std::uint32_t number = 0; number < count; ++number) {
        hashes.emplace_back(HashOf(NumberText(number)), number);
        seen.emplace_back(SeenOf((hashes.back().first ^ folder) * Factor), number);
    }
    std::sort(seen.begin(), seen.end());
    std::sort(hashes.begin(), hashes.end());
    std::size_t inOneFolder = 0;
    std::size_t inTwo = 0;
    for (std::size_t at = 1; at < count; ++at) {
        if (seen[at - 1].first == seen[at].first) {
            ++inOneFolder;
            ExpectApart({folder, Keep(seen[at - 1].second)}, {folder, Keep(seen[at].second)});
        }
        // Where the upper halves are equal, some folder makes up for the rest.
        const std::uint64_t difference = hashes[at - 1].first ^ hashes[at].first;
        if (difference >> 32 == 0) {
            ++inTwo;
            ExpectApart({0, Keep(hashes[at - 1].second)},
                        {static_cast<PlanIndex>(difference), Keep(hashes[at].second)});
        }
    }
    EXPECT_GT(inOneFolder, 0u);
    EXPECT_GT(inTwo, 0u);
}

} // namespace
