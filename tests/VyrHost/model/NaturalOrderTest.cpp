#include <VyrHost/model/NaturalOrder.h>

#include <gtest/gtest.h>
#include <tests/VyrHost/model/NaturalKey.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <vector>

using VyrHost::Model::IsNaturallyLess;

TEST(NaturalOrder, OrdersNumbersByTheirValue)
{
    const std::vector<std::u16string> expected = {
        u"a", u"a1", u"a2", u"A2b", u"a002b", u"a10", u"a11", u"a100", u"a1000000000000000000000", u"b", u"B1", u"b2"};
    std::vector<std::u16string> names = expected;
    std::mt19937 random(1);
    for (int round = 0; round < 50; ++round) {
        std::shuffle(names.begin(), names.end(), random);
        std::sort(names.begin(), names.end(), IsNaturallyLess);
        // A2b and a002b have the same number and letters: their code units decide, a capital first.
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

TEST(NaturalOrder, SortsNamesWithAnyBeginning)
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
        VyrHost::Model::SortNaturally(sorted);
        std::vector<std::u16string> expected = names;
        std::sort(expected.begin(), expected.end(), IsNaturallyLess);
        for (std::size_t place = 0; place < names.size(); ++place)
            ASSERT_EQ(sorted[place].name, expected[place]);
    }
}

TEST(NaturalOrder, IsThatOfNumbersAndLetters)
{
    constexpr std::u16string_view Parts[] = {u"",  u"0", u"00", u"1",      u"01", u"9",      u"10",
                                             u"a", u"A", u"z",  u"Z",      u".",  u" ",      u"~",
                                             u"@", u"{", u"/",  u"\u00E9", u":",  u"\uFFFF", u"99999999999999999999"};
    std::vector<std::u16string> names;
    for (const auto& first : Parts)
        for (const auto& second : Parts)
            names.push_back(std::u16string(first).append(second));
    for (const auto& left : names)
        for (const auto& right : names)
            EXPECT_EQ(IsNaturallyLess(left, right), VyrTests::NaturalKey(left) < VyrTests::NaturalKey(right));
}

/// A name with a number that distinguishes it from equal ones.
struct Numbered
{
    std::u16string_view name;
    std::size_t number;
};

/// Sorts `names` and compares the order with that of their keys; each item must be there once, with its number.
void ExpectSorted(const std::vector<std::u16string>& names)
{
    std::vector<Numbered> items;
    for (std::size_t number = 0; number < names.size(); ++number)
        items.push_back({names[number], number});
    VyrHost::Model::SortNaturally(items);
    ASSERT_EQ(items.size(), names.size());
    std::vector<decltype(VyrTests::NaturalKey(u""))> expected;
    for (const std::u16string& name : names)
        expected.push_back(VyrTests::NaturalKey(name));
    std::sort(expected.begin(), expected.end());
    std::vector<bool> isSeen(names.size());
    for (std::size_t place = 0; place < items.size(); ++place) {
        ASSERT_TRUE(items[place].name == expected[place].second) << place;
        ASSERT_TRUE(items[place].name == names[items[place].number]) << place;
        ASSERT_FALSE(isSeen[items[place].number]) << place;
        isSeen[items[place].number] = true;
    }
}

TEST(NaturalOrder, SortsNoItemAndOneItem)
{
    ExpectSorted({});
    for (const char16_t* name : {u"", u"a", u"0", u"IMG_0001.jpg"})
        ExpectSorted({name});
    ExpectSorted({u"", u""});
    ExpectSorted({u"b", u"", u"a"});
}

TEST(NaturalOrder, SortsNamesWithEqualBeginnings)
{
    const std::u16string start(40, u'x');
    // They differ after more digits than an integer has, in leading zeros, in case, and not at all.
    ExpectSorted({start + u"2", start + u"10", start + u"1", start});
    ExpectSorted({u"a" + start + u"b", u"a" + start + u"a", u"b" + start + u"a", u"b" + start});
    ExpectSorted({u"a1b2c3d4e5f6g7h8i10", u"a1b2c3d4e5f6g7h8i9", u"a1b2c3d4e5f6g7h8i09", u"A1b2c3d4e5f6g7h8i9"});
    ExpectSorted({u"x010", u"x10", u"x0010", u"X10", u"x10", u"x9", u"x011", u"x000"});
    ExpectSorted({u"100000000000000000001", u"100000000000000000000", u"99999999999999999999",
                  u"0100000000000000000000", u"18446744073709551616", u"18446744073709551615",
                  u"18446744073709551617"});
    ExpectSorted(std::vector<std::u16string>(1000, u"IMG_0001.jpg"));
    ExpectSorted(std::vector<std::u16string>(1000));
}

TEST(NaturalOrder, SortsNamesThatAreBeginningsOfOthers)
{
    // The common beginning ends in a number, in a name, or with the shortest name.
    ExpectSorted({u"IMG_10", u"IMG_1", u"IMG_100", u"IMG_1a", u"IMG_1", u"IMG_1.jpg", u"IMG_19", u"IMG_2"});
    ExpectSorted({u"1", u"12", u"123", u"1234", u"12345", u"1a", u"12a", u"123a"});
    ExpectSorted({u"000", u"00", u"0", u"0000", u"00a", u"000a", u"0001"});
    ExpectSorted({u"a", u"ab", u"abc", u"aB", u"ABC", u"A"});
    std::vector<std::u16string> names;
    for (std::size_t length = 0; length < 200; ++length)
        for (const char16_t unit : {u'0', u'1', u'a', u'\uFFFF'})
            names.push_back(std::u16string(length * 37 % 200, unit));
    ExpectSorted(names);
}

TEST(NaturalOrder, SortsManyNamesOfEachKind)
{
    constexpr char16_t Units[] = {u'0', u'0', u'1', u'2', u'9', u'a', u'A', u'b', u'-', u':', u'.', u'\u00E9', u'z'};
    std::mt19937 random(3);
    for (const char16_t* const start :
         {u"", u"IMG_", u"IMG_00", u"2024-03-", u"x9", u"a long beginning of all names "}) {
        // No "_", which is between the capital and the small letters.
        std::u16string beginning = start;
        std::replace(beginning.begin(), beginning.end(), u'_', u'-');
        for (const std::size_t longest : {3u, 8u, 20u}) {
            std::vector<std::u16string> names;
            for (int count = 0; count < 3000; ++count) {
                std::u16string name = beginning;
                for (std::size_t length = random() % (longest + 1); length > 0; --length)
                    name += Units[random() % std::size(Units)];
                names.push_back(name);
            }
            ExpectSorted(names);
        }
    }
}

TEST(NaturalOrder, SortsAHundredThousandNumberedNames)
{
    constexpr std::size_t count = 100'000;
    std::vector<std::u16string> names;
    for (std::size_t number = 0; number < count; ++number) {
        const std::string digits = std::to_string(number);
        names.push_back(u"Trip " + std::u16string(digits.begin(), digits.end()) + u".jpg");
    }
    std::vector<Numbered> items;
    for (std::size_t number = 0; number < count; ++number)
        items.push_back({names[number], number});
    std::shuffle(items.begin(), items.end(), std::mt19937(1));
    VyrHost::Model::SortNaturally(items);
    for (std::size_t number = 0; number < count; ++number)
        ASSERT_EQ(items[number].number, number);
}
