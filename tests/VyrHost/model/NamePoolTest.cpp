#include <VyrHost/model/NamePool.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using namespace VyrHost::Model;

/// A text of `length` code units that differs from others of that length, without repeated parts.
std::u16string TextOf(std::size_t length, unsigned seed)
{
    std::mt19937 random(seed);
    std::u16string text;
    text.reserve(length);
    while (text.size() < length)
        text += static_cast<char16_t>(random());
    return text;
}

TEST(InternedName, IsOneWord)
{
    EXPECT_EQ(sizeof(InternedName), sizeof(void*));
    EXPECT_TRUE(std::is_trivially_copyable_v<InternedName>);
}

TEST(InternedName, IsEmptyAtFirst)
{
    const InternedName name;
    EXPECT_TRUE(name.IsEmpty());
    EXPECT_EQ(name.View(), u"");
    EXPECT_NE(name.View().data(), nullptr);
    EXPECT_EQ(name, InternedName());
    NamePool texts;
    EXPECT_EQ(name, texts.Intern(u""));
    EXPECT_FALSE(name == texts.Intern(std::u16string_view(u"\0", 1)));
}

TEST(InternedName, IsEqualToItsText)
{
    NamePool texts;
    NamePool others;
    const std::u16string words[] = {u"",
                                    u"a",
                                    u"A",
                                    u"ab",
                                    u"abc",
                                    u"b",
                                    u"\u00E9",
                                    u"e\u0301",
                                    u"abcd",
                                    u"\xD800",
                                    u"\xDC00",
                                    std::u16string(u"a\0", 2),
                                    u"abce",
                                    TextOf(100'000, 1),
                                    TextOf(100'000, 2)};
    for (const std::u16string& left : words)
        for (const std::u16string& right : words) {
            EXPECT_EQ(texts.Intern(left) == texts.Intern(right), left == right);
            EXPECT_EQ(texts.Intern(left) == others.Intern(right), left == right);
            EXPECT_EQ(texts.Intern(left) != others.Intern(right), left != right);
        }
}

TEST(InternedName, ConvertsToItsText)
{
    NamePool texts;
    const InternedName name = texts.Intern(u"holiday.jpg");
    const std::u16string_view view = name;
    EXPECT_EQ(view, u"holiday.jpg");
    EXPECT_FALSE(name.IsEmpty());
    EXPECT_EQ(name.View(), u"holiday.jpg");
}

TEST(NamePool, DistinguishesTextsOfEveryLength)
{
    NamePool texts;
    std::vector<std::pair<std::u16string, InternedName>> kept;
    for (const std::size_t length : {0u, 1u, 2u, 32'766u, 32'767u, 32'768u, 32'769u, 40'000u, 40'000u, 65'534u, 65'535u,
                                     65'536u, 65'537u, 131'072u, 200'000u, 5'000'000u, 0u, 3u})
        for (int count = 0; count < 2; ++count) {
            const std::u16string text = TextOf(length, static_cast<unsigned>(kept.size()));
            kept.emplace_back(text, texts.Intern(text));
        }
    for (const auto& [text, name] : kept)
        EXPECT_TRUE(name.View() == text) << text.size();
}

TEST(NamePool, KeepsEachLengthFromZeroToMoreThanABlock)
{
    NamePool texts;
    std::vector<InternedName> kept;
    // Each text is a prefix of this one, so that an error of one code unit shows.
    const std::u16string text = TextOf(3000, 7);
    for (std::size_t length = 0; length <= text.size(); ++length)
        kept.push_back(texts.Intern(std::u16string_view(text).substr(0, length)));
    for (std::size_t length = 0; length <= text.size(); ++length)
        ASSERT_TRUE(kept[length].View() == std::u16string_view(text).substr(0, length)) << length;
}

TEST(NamePool, DoesNotMoveMillionsOfShortTexts)
{
    constexpr std::uint32_t count = 3'000'000;
    NamePool texts;
    std::vector<InternedName> kept;
    kept.reserve(count);
    std::vector<std::u16string_view> views;
    views.reserve(count);
    // The number of each in base 7, so that lengths mix; every seventh is empty.
    char16_t digits[16];
    const auto textOf = [&digits](std::uint32_t number) {
        std::size_t length = 0;
        for (std::uint32_t rest = number % 7 == 0 ? 0 : number; rest > 0; rest /= 7)
            digits[length++] = static_cast<char16_t>(u'0' + rest % 7);
        return std::u16string_view(digits, length);
    };
    for (std::uint32_t number = 0; number < count; ++number) {
        kept.push_back(texts.Intern(textOf(number)));
        views.push_back(kept.back().View());
    }
    for (std::uint32_t number = 0; number < count; ++number) {
        const std::u16string_view view = kept[number].View();
        ASSERT_TRUE(view == textOf(number)) << number;
        ASSERT_TRUE(view.data() == views[number].data() && view.size() == views[number].size()) << number;
    }
}

TEST(NamePool, CopiesTexts)
{
    NamePool texts;
    std::u16string text = u"before";
    const InternedName name = texts.Intern(text);
    text = u"behind";
    EXPECT_EQ(name.View(), u"before");
    // Also of a text that it owns.
    const InternedName copy = texts.Intern(name);
    EXPECT_EQ(copy.View(), u"before");
    EXPECT_NE(copy.View().data(), name.View().data());
}

TEST(NamePool, KeepsItsTextsWhenItIsMoved)
{
    NamePool texts;
    const InternedName name = texts.Intern(u"name");
    NamePool moved = std::move(texts);
    const InternedName next = moved.Intern(u"next");
    EXPECT_EQ(name.View(), u"name");
    EXPECT_EQ(next.View(), u"next");
}

} // namespace
