#include <VyrHost/model/NameTable.h>

#include <VyrHost/model/NamePool.h>

#include <gtest/gtest.h>

#include <array>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace VyrHost::Model;
using VyrHostPlatform::NameFolding;

namespace {

constexpr NameFolding Foldings[] = {NameFolding::None, NameFolding::Case, NameFolding::Form, NameFolding::CaseAndForm};

/// A part of a name, and its class for each of the foldings: equal numbers are the same to the folder.
struct Piece
{
    std::u16string_view text;
    std::array<char, 4> kinds;
};

// An accented letter in one code point and in two, small and capital.
constexpr Piece Pieces[] = {
    {u"a", {1, 1, 1, 1}},       {u"A", {2, 1, 2, 1}},       {u"\u00E9", {3, 3, 3, 3}}, {u"\u00C9", {4, 3, 4, 3}},
    {u"e\u0301", {5, 5, 3, 3}}, {u"E\u0301", {6, 5, 4, 3}}, {u".", {7, 7, 7, 7}},      {u"1", {8, 8, 8, 8}},
};

/// A name of some of these parts, and its key for a folding.
struct Made
{
    std::u16string name;
    std::string key;
};

Made MakeName(std::mt19937& random, NameFolding folding)
{
    Made made;
    for (std::size_t length = 1 + random() % 5; length > 0; --length) {
        const Piece& piece = Pieces[random() % std::size(Pieces)];
        made.name += piece.text;
        made.key += piece.kinds[static_cast<std::size_t>(folding)];
    }
    return made;
}

} // namespace

TEST(NameTable, IsEmptyAtFirst)
{
    for (const NameFolding folding : Foldings) {
        NameTable table;
        EXPECT_EQ(table.Folding(), NameFolding::None);
        table.SetFolding(folding);
        EXPECT_EQ(table.Folding(), folding);
        for (const std::u16string_view name : {u"", u"a", u"\u00E9"}) {
            EXPECT_EQ(table.Find(name), nullptr);
            EXPECT_EQ(std::as_const(table).Find(name), nullptr);
        }
        EXPECT_TRUE(table.Records().empty());
    }
}

TEST(NameTable, FindsNamesThatItsFolderTakesForTheSame)
{
    for (const NameFolding folding : Foldings)
        for (const Piece& left : Pieces)
            for (const Piece& right : Pieces) {
                NamePool texts;
                NameTable table;
                table.SetFolding(folding);
                table.Add(texts.Intern(left.text));
                const auto kind = static_cast<std::size_t>(folding);
                const bool isOne = left.kinds[kind] == right.kinds[kind];
                EXPECT_EQ(table.Find(right.text), isOne ? &table.Records()[0] : nullptr);
                EXPECT_EQ(table.NumberOf(table.Add(texts.Intern(right.text))), isOne ? 0u : 1u);
                EXPECT_EQ(table.Records().size(), isOne ? 1u : 2u);
                EXPECT_EQ(table.Records()[0].name.View(), left.text);
                EXPECT_EQ(table.Find(left.text), &table.Records()[0]);
            }
}

TEST(NameTable, KeepsTheFirstOfEqualNames)
{
    NamePool texts;
    NameTable table;
    table.SetFolding(NameFolding::CaseAndForm);
    NameRecord& first = table.Add(texts.Intern(u"\u00C9t\u00E9.JPG"));
    first.owner = 3;
    first.kind = VyrPlatform::FileSystem::Kind::Folder;
    NameRecord& again = table.Add(texts.Intern(u"e\u0301te\u0301.jpg"));
    EXPECT_EQ(&again, &first);
    EXPECT_EQ(again.name.View(), u"\u00C9t\u00E9.JPG");
    EXPECT_EQ(again.owner, 3u);
    EXPECT_EQ(again.kind, VyrPlatform::FileSystem::Kind::Folder);
    EXPECT_EQ(table.Records().size(), 1u);
}

TEST(NameTable, IsAMapOfNamesAsItsFolderComparesThem)
{
    for (const NameFolding folding : Foldings)
        for (unsigned seed = 0; seed < 5; ++seed) {
            std::mt19937 random(seed);
            NamePool texts;
            NameTable table;
            table.SetFolding(folding);
            std::map<std::string, std::size_t> expected;
            std::vector<std::u16string> order;
            for (int round = 0; round < 4000; ++round) {
                const Made made = MakeName(random, folding);
                if (round % 500 == 0)
                    table.Reserve(random() % 5000);
                if (round % 700 == 0)
                    table.ForgetIndex();
                const auto at = expected.find(made.key);
                ASSERT_EQ(table.Find(made.name), at == expected.end() ? nullptr : &table.Records()[at->second]);
                if (random() % 2)
                    continue;
                const std::size_t number = table.NumberOf(table.Add(texts.Intern(made.name)));
                if (expected.try_emplace(made.key, number).second)
                    order.push_back(made.name);
                ASSERT_EQ(number, expected[made.key]);
            }
            // The records are in their order.
            ASSERT_EQ(table.Records().size(), order.size());
            for (std::size_t place = 0; place < order.size(); ++place) {
                EXPECT_EQ(table.Records()[place].name.View(), order[place]);
                EXPECT_EQ(table.Find(order[place]), &table.Records()[place]);
                EXPECT_EQ(std::as_const(table).Find(order[place]), &table.Records()[place]);
            }
        }
}

TEST(NameTable, HoldsTheSameWhetherNamesAreAddedAtOnceOrOneByOne)
{
    using VyrPlatform::FileSystem::Kind;
    for (const NameFolding folding : Foldings)
        for (const std::size_t count : {0u, 1u, 7u, 8u, 9u, 15u, 16u, 17u, 3000u}) {
            std::mt19937 random(static_cast<unsigned>(count));
            NamePool texts;
            std::vector<ListedName> listed;
            for (std::size_t number = 0; number < count; ++number)
                listed.push_back({texts.Intern(MakeName(random, folding).name),
                                  number % 3 == 0 ? Kind::Folder : Kind::File, number % 5 == 0});
            NameTable table;
            NameTable expected;
            for (NameTable* const each : {&table, &expected}) {
                each->SetFolding(folding);
                each->Add(texts.Intern(u"first"));
            }
            table.Add(listed);
            for (const ListedName& one : listed) {
                NameRecord& record = expected.Add(one.name);
                record.kind = one.kind;
                record.isLink = one.isLink;
            }
            ASSERT_EQ(table.Records().size(), expected.Records().size());
            for (std::size_t place = 0; place < table.Records().size(); ++place) {
                const NameRecord& record = table.Records()[place];
                EXPECT_EQ(record.name, expected.Records()[place].name);
                EXPECT_EQ(record.kind, expected.Records()[place].kind);
                EXPECT_EQ(record.isLink, expected.Records()[place].isLink);
                EXPECT_EQ(table.Find(record.name), &record);
            }
        }
}

TEST(NameTable, FindsEachOfManyNamesAndNoOther)
{
    constexpr std::uint32_t Count = 20000;
    NamePool texts;
    NameTable table;
    const auto nameOf = [](std::uint32_t number) {
        const std::string digits = std::to_string(number);
        return u"name " + std::u16string(digits.begin(), digits.end());
    };
    EXPECT_EQ(table.Find(nameOf(0)), nullptr);
    for (std::uint32_t number = 0; number < Count; ++number)
        table.Add(texts.Intern(nameOf(number))).owner = number;
    for (std::uint32_t number = 0; number < Count; ++number) {
        const NameRecord* const record = table.Find(nameOf(number));
        ASSERT_NE(record, nullptr);
        EXPECT_EQ(record->owner, number);
        EXPECT_EQ(&table.Add(texts.Intern(nameOf(number))), record);
    }
    EXPECT_EQ(table.Records().size(), Count);
    EXPECT_EQ(table.Find(nameOf(Count)), nullptr);
    EXPECT_EQ(table.Find(u""), nullptr);
}
