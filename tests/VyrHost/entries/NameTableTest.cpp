// Tests of the table of a folder's names.
#include <VyrHost/entries/NameTable.h>

#include <VyrHost/entries/NameStore.h>

#include <gtest/gtest.h>

#include <string>

using namespace VyrHost;

TEST(NameTable, FindsEveryNameAmongManyAndNoOther)
{
    constexpr std::uint32_t Count = 20000;
    NameStore texts;
    NameTable table;
    const auto nameOf = [](std::uint32_t number) {
        const std::string digits = std::to_string(number);
        return u"name " + std::u16string(digits.begin(), digits.end());
    };
    EXPECT_EQ(table.Find(nameOf(0)), nullptr);
    for (std::uint32_t number = 0; number < Count; ++number)
        table.Add(texts.Keep(nameOf(number))).owner = number;
    for (std::uint32_t number = 0; number < Count; ++number) {
        const NameRecord* const record = table.Find(nameOf(number));
        ASSERT_NE(record, nullptr);
        EXPECT_EQ(record->owner, number);
        EXPECT_EQ(&table.Add(texts.Keep(nameOf(number))), record);
    }
    EXPECT_EQ(table.Records().size(), Count);
    EXPECT_EQ(table.Find(nameOf(Count)), nullptr);
    EXPECT_EQ(table.Find(u""), nullptr);
}

TEST(NameStore, KeepsTextsOfEveryLengthApart)
{
    NameStore texts;
    std::vector<std::pair<std::u16string, KeptName>> kept;
    for (const std::size_t length : {0U, 1U, 40000U, 40000U, 65536U, 65537U, 200000U, 3U})
        for (char16_t unit : {u'a', u'b'}) {
            const std::u16string text(length, unit);
            kept.emplace_back(text, texts.Keep(text));
        }
    for (const auto& [text, name] : kept)
        EXPECT_EQ(name.View(), text);
}
