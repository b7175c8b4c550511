// Tests of the natural order of names.
#include <VyrHost/entries/NaturalOrder.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <random>
#include <string>
#include <vector>

using VyrHost::IsNaturallyLess;

TEST(NaturalOrder, OrdersNumbersByTheirValue)
{
    const std::vector<std::u16string> expected = {
        u"a", u"a1", u"a2", u"A2b", u"a002b", u"a10", u"a11", u"a100", u"a1000000000000000000000", u"b", u"B1", u"b2"};
    std::vector<std::u16string> names = expected;
    std::mt19937 random(1);
    for (int round = 0; round < 50; ++round) {
        std::shuffle(names.begin(), names.end(), random);
        std::sort(names.begin(), names.end(), IsNaturallyLess);
        // A2b and a002b are the same number and letters: their code units decide, a capital first.
        EXPECT_EQ(names, expected);
    }
}

TEST(NaturalOrder, IsAStrictOrder)
{
    const std::u16string parts[] = {u"", u"0", u"00", u"1", u"01", u"9", u"10", u"a", u"A", u"b", u".", u"é"};
    std::vector<std::u16string> names;
    for (const auto& first : parts)
        for (const auto& second : parts)
            names.push_back(first + second);
    for (const auto& left : names)
        for (const auto& right : names) {
            EXPECT_FALSE(IsNaturallyLess(left, right) && IsNaturallyLess(right, left));
            EXPECT_EQ(left == right, !IsNaturallyLess(left, right) && !IsNaturallyLess(right, left));
        }
    std::sort(names.begin(), names.end(), IsNaturallyLess);
    for (std::size_t left = 0; left < names.size(); ++left)
        for (std::size_t right = left + 1; right < names.size(); ++right)
            EXPECT_FALSE(IsNaturallyLess(names[right], names[left]));
}

struct Named
{
    Named(std::u16string_view text) : name(text) {}
    std::u16string_view name;
};

TEST(NaturalOrder, SortsAsTheOrderSaysWhateverNamesBeginWith)
{
    constexpr char16_t Units[] = {u'0', u'0', u'1', u'2', u'9', u'a', u'A', u'b', u'-', u':', u'.', u'é', u'日', u'z'};
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        std::vector<std::u16string> names;
        const std::u16string start = round % 3 == 0 ? u"IMG_00" : round % 3 == 1 ? u"x9" : u"";
        for (int count = 0; count < 60; ++count) {
            std::u16string name = start;
            for (std::size_t length = random() % 12; length > 0; --length)
                name += Units[random() % std::size(Units)];
            names.push_back(name);
        }
        names.push_back(start + std::u16string(300, u'7'));
        names.push_back(start + std::u16string(299, u'8'));
        std::vector<Named> sorted(names.begin(), names.end());
        VyrHost::SortNaturally(sorted);
        std::vector<std::u16string> expected = names;
        std::sort(expected.begin(), expected.end(), IsNaturallyLess);
        for (std::size_t place = 0; place < names.size(); ++place)
            ASSERT_EQ(sorted[place].name, expected[place]);
    }
    std::vector<Named> none;
    VyrHost::SortNaturally(none);
    EXPECT_TRUE(none.empty());
}
