// UTF-8 to UTF-16 and back, well-formed or not.
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <locale>
#include <random>
#include <utility>
#include <vector>

using namespace VyrPlatform;

namespace {

constexpr char32_t lastCharacter = 0x10FFFF;

bool IsSurrogate(char32_t character)
{
    return character >= 0xD800 && character <= 0xDFFF;
}

/// A character in UTF-8, as the standard library encodes it.
std::string StandardUtf8(char32_t character)
{
    const auto& codec = std::use_facet<std::codecvt<char32_t, char8_t, std::mbstate_t>>(std::locale::classic());
    std::mbstate_t state{};
    std::array<char8_t, 4> bytes;
    const char32_t* readTo = nullptr;
    char8_t* writtenTo = nullptr;
    codec.out(state, &character, &character + 1, readTo, bytes.data(), bytes.data() + bytes.size(), writtenTo);
    return std::string(bytes.data(), writtenTo);
}

/// A character in UTF-16, as the standard library encodes it.
std::u16string StandardUtf16(char32_t character)
{
    const auto& codec = std::use_facet<std::codecvt<char16_t, char8_t, std::mbstate_t>>(std::locale::classic());
    const std::string bytes = StandardUtf8(character);
    const std::u8string input(bytes.begin(), bytes.end());
    std::mbstate_t state{};
    std::array<char16_t, 2> units;
    const char8_t* readTo = nullptr;
    char16_t* writtenTo = nullptr;
    codec.in(state, input.data(), input.data() + input.size(), readTo, units.data(), units.data() + units.size(),
             writtenTo);
    return std::u16string(units.data(), writtenTo);
}

/// Whether `bytes` are one character in UTF-8, as the standard library judges it.
bool IsCharacter(std::string_view bytes)
{
    const auto& codec = std::use_facet<std::codecvt<char32_t, char8_t, std::mbstate_t>>(std::locale::classic());
    const std::u8string input(bytes.begin(), bytes.end());
    std::mbstate_t state{};
    char32_t character = 0;
    const char8_t* readTo = nullptr;
    char32_t* writtenTo = nullptr;
    const auto result =
        codec.in(state, input.data(), input.data() + input.size(), readTo, &character, &character + 1, writtenTo);
    // GCC 12's library lets surrogates pass.
    return result == std::codecvt_base::ok && readTo == input.data() + input.size() && writtenTo == &character + 1 &&
           !IsSurrogate(character);
}

/// How many characters and how many bytes that belong to none `bytes` has.
std::pair<int, int> CountCharactersAndStrays(std::string_view bytes)
{
    int characters = 0;
    int strays = 0;
    for (std::size_t at = 0; at < bytes.size();) {
        std::size_t length = 1;
        while (length <= 4 && !IsCharacter(bytes.substr(at, length)))
            ++length;
        const bool isCharacter = length <= 4;
        ++(isCharacter ? characters : strays);
        at += isCharacter ? length : 1;
    }
    return {characters, strays};
}

int CountCharacters(std::u16string_view text)
{
    return static_cast<int>(
        std::count_if(text.begin(), text.end(), [](char16_t unit) { return unit < 0xDC00 || unit > 0xDFFF; }));
}

/// Random bytes in which those that begin, continue and break sequences are frequent.
std::string RandomBytes(std::mt19937& random, std::size_t length)
{
    static constexpr std::string_view interesting =
        "a/.\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF3\xF4\xF5\xF8\xFF";
    std::string bytes(length, '\0');
    for (char& byte : bytes)
        byte = random() % 8 == 0 ? static_cast<char>(random() % 256) : interesting[random() % interesting.size()];
    return bytes;
}

} // namespace

TEST(EncodingTest, EveryCharacterIsReadAndWrittenAsTheStandardLibraryDoes)
{
    constexpr char32_t pageSize = 0x100;
    for (char32_t page = 0; page <= lastCharacter; page += pageSize) {
        std::string bytes;
        std::u16string units;
        for (char32_t character = page; character < page + pageSize; ++character) {
            if (IsSurrogate(character))
                continue;
            bytes += StandardUtf8(character);
            units += StandardUtf16(character);
        }
        ASSERT_EQ(Encoding::FromUtf8(bytes), std::u16string_view(units)) << static_cast<unsigned>(page);
        ASSERT_EQ(Encoding::FromNameBytes(bytes), std::u16string_view(units)) << static_cast<unsigned>(page);
        ASSERT_EQ(Encoding::ToUtf8(units), bytes) << static_cast<unsigned>(page);
        ASSERT_EQ(Encoding::ToNameBytes(units), bytes) << static_cast<unsigned>(page);
    }
}

TEST(EncodingTest, EmptyStaysEmpty)
{
    EXPECT_TRUE(Encoding::FromUtf8({}).IsEmpty());
    EXPECT_TRUE(Encoding::FromNameBytes({}).IsEmpty());
    EXPECT_EQ(Encoding::ToUtf8({}), "");
    EXPECT_EQ(Encoding::ToNameBytes({}), "");
}

TEST(EncodingTest, NulsAreCharactersLikeOthers)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(Encoding::FromUtf8("a\0b"sv), u"a\0b"sv);
    EXPECT_EQ(Encoding::ToUtf8(u"a\0b"sv), "a\0b"sv);
}

TEST(EncodingTest, EachByteThatIsNotUtf8BecomesOneReplacement)
{
    const std::vector<std::pair<std::string_view, std::u16string_view>> cases = {
        {"\x80", u"\uFFFD"},
        {"a\xFF", u"a\uFFFD"},
        // Overlong forms.
        {"\xC0\xAF", u"\uFFFD\uFFFD"},
        {"\xC1\xBF", u"\uFFFD\uFFFD"},
        {"\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},
        {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},
        {"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Surrogates.
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
        {"\xED\xBF\xBF", u"\uFFFD\uFFFD\uFFFD"},
        // Above U+10FFFF.
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Cut sequences, at the end and in front of another character.
        {"\xE2\x82", u"\uFFFD\uFFFD"},
        {"\xF0\x9F\x98", u"\uFFFD\uFFFD\uFFFD"},
        {"\xE2\x82z", u"\uFFFD\uFFFDz"},
        {"\xC3\xC3\xA4", u"\uFFFD\u00E4"},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(Encoding::FromUtf8(bytes), text) << testing::PrintToString(bytes);
}

TEST(EncodingTest, StrayBytesOfNamesBecomeLoneSurrogates)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(Encoding::FromNameBytes("caf\xE9.jpg"), u"caf\xDCE9.jpg"sv);
    EXPECT_EQ(Encoding::FromNameBytes("\xED\xA0\x80"), u"\xDCED\xDCA0\xDC80"sv);
    EXPECT_EQ(Encoding::ToNameBytes(u"caf\xDCE9.jpg"sv), "caf\xE9.jpg");
}

TEST(EncodingTest, LoneSurrogatesOfContentBecomeReplacements)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(Encoding::ToUtf8(u"a\xD800"sv), "a\xEF\xBF\xBD");
    EXPECT_EQ(Encoding::ToUtf8(u"\xDCFFz"sv), "\xEF\xBF\xBDz");
    EXPECT_EQ(Encoding::ToUtf8(u"\xD800\xD800\xDC00"sv), "\xEF\xBF\xBD\xF0\x90\x80\x80");
}

TEST(EncodingTest, OtherLoneSurrogatesOfNamesAreWrittenInThreeBytes)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(Encoding::ToNameBytes(u"\xD800"sv), "\xED\xA0\x80");
    EXPECT_EQ(Encoding::ToNameBytes(u"\xDC7F"sv), "\xED\xB1\xBF");
    EXPECT_EQ(Encoding::ToNameBytes(u"\xDFFF"sv), "\xED\xBF\xBF");
}

TEST(EncodingTest, AppendingKeepsTheFormerBytes)
{
    std::string bytes = "x";
    Encoding::AppendUtf8(bytes, u"\u00E4");
    Encoding::AppendNameBytes(bytes, std::u16string_view(u"\xDC80"));
    EXPECT_EQ(bytes, "x\xC3\xA4\x80");
}

TEST(EncodingTest, NamesOfAnyBytesAreConvertedBackExactly)
{
    std::mt19937 random(20240719);
    for (int round = 0; round < 100000; ++round) {
        const std::string bytes = RandomBytes(random, random() % 24);
        ASSERT_EQ(Encoding::ToNameBytes(Encoding::FromNameBytes(bytes)), bytes) << testing::PrintToString(bytes);
    }
}

TEST(EncodingTest, AnyBytesDecodeToTheCharactersThatAreInThem)
{
    std::mt19937 random(4711);
    for (int round = 0; round < 20000; ++round) {
        const std::string bytes = RandomBytes(random, random() % 16);
        const auto [characters, strays] = CountCharactersAndStrays(bytes);
        const CString name = Encoding::FromNameBytes(bytes);
        ASSERT_EQ(CountCharacters(name), characters) << testing::PrintToString(bytes);
        ASSERT_EQ(CountCharacters(Encoding::FromUtf8(bytes)), characters + strays) << testing::PrintToString(bytes);
    }
}

TEST(EncodingTest, NoLengthAndNoPositionCutsACharacter)
{
    const std::string bytes = StandardUtf8(0x1F600);
    const std::u16string units = StandardUtf16(0x1F600);
    for (std::size_t before = 0; before < 1100; ++before) {
        const std::string content = std::string(before, 'a') + bytes + std::string(before % 7, 'b') + bytes;
        const std::u16string text = std::u16string(before, u'a') + units + std::u16string(before % 7, u'b') + units;
        ASSERT_EQ(Encoding::FromUtf8(content), std::u16string_view(text)) << before;
        ASSERT_EQ(Encoding::ToUtf8(text), content) << before;
    }
}

TEST(EncodingTest, LongTextsOfCharactersOfEveryLengthAreConvertedBack)
{
    std::string bytes;
    std::mt19937 random(7);
    constexpr std::array<char32_t, 8> limits = {0x7F, 0x80, 0x7FF, 0x800, 0xFFFF, 0x10000, 0x10FFFF, 0x20AC};
    while (bytes.size() < 100000)
        bytes += StandardUtf8(limits[random() % limits.size()]);
    EXPECT_EQ(Encoding::ToUtf8(Encoding::FromUtf8(bytes)), bytes);
    EXPECT_EQ(Encoding::ToNameBytes(Encoding::FromNameBytes(bytes)), bytes);
}
