// Code pages: one table of bytes and texts for both systems.
#include <VyrPlatform/text/CodePage.h>

#include <tests/support/Describe.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace CodePage = VyrPlatform::CodePage;

namespace {

using namespace std::string_literals;

/// The text of `bytes`, converted after its size was requested.
CString ToText(std::uint32_t codePage, const std::string& bytes)
{
    const std::size_t size = CodePage::ToText(codePage, bytes.c_str(), {});
    std::vector<char16_t> text(size, u'?');
    EXPECT_EQ(CodePage::ToText(codePage, bytes.c_str(), text), size);
    return size == 0 ? CString(u"(none)") : CString(std::u16string_view(text.data(), size - 1));
}

std::string ToBytes(std::uint32_t codePage, const CString& text)
{
    const std::size_t size = CodePage::ToBytes(codePage, text.GetString(), '#', {});
    std::vector<char> bytes(size, '?');
    EXPECT_EQ(CodePage::ToBytes(codePage, text.GetString(), '#', bytes), size);
    return size == 0 ? "(none)"s : std::string(bytes.data(), size - 1);
}

/// A text in a code page, and its bytes.
struct Same
{
    std::uint32_t codePage;
    const char16_t* text;
    std::string bytes;
};

const std::vector<Same> sameBothWays = {
    {1250, u"Žluťoučký kůň €",
     "\x8E"
     "lu\x9D"
     "ou\xE8"
     "k\xFD k\xF9\xF2 \x80"},
    {1251, u"Привет, мир №", "\xCF\xF0\xE8\xE2\xE5\xF2, \xEC\xE8\xF0 \xB9"},
    {1252, u"Größe “naïve” œuvre €",
     "Gr\xF6\xDF"
     "e \x93na\xEFve\x94 \x9Cuvre \x80"},
    {1253, u"Ελλάδα", "\xC5\xEB\xEB\xDC\xE4\xE1"},
    {1254, u"İstanbul ığdır şğ",
     "\xDDstanbul \xFD\xF0"
     "d\xFDr \xFE\xF0"},
    {1255, u"שלום", "\xF9\xEC\xE5\xED"},
    {1256, u"سلام", "\xD3\xE1\xC7\xE3"},
    {1257, u"Āžuolas ņš", "\xC2\xFEuolas \xF2\xF0"},
    {1258, u"Đô\u0300ng ư", "\xD0\xF4\xCCng \xFD"},
    {437, u"╔═╗ éñ½ µ αß", "\xC9\xCD\xBB \x82\xA4\xAB \xE6 \xE0\xE1"},
    {850, u"Ãþı ×", "\xC7\xE7\xD5 \x9E"},
    {852, u"Łódź őű",
     "\x9D\xA2"
     "d\xAB \x8B\xFB"},
    {866, u"Привет ёЁ", "\x8F\xE0\xA8\xA2\xA5\xE2 \xF1\xF0"},
    {874, u"ไทย", "\xE4\xB7\xC2"},
    {932, u"日本語テスト ｱｲｳ ～",
     "\x93\xFA\x96{\x8C\xEA\x83"
     "e\x83X\x83g \xB1\xB2\xB3 \x81`"},
    {936, u"中文测试 €", "\xD6\xD0\xCE\xC4\xB2\xE2\xCA\xD4 \x80"},
    {949, u"한국어 똠",
     "\xC7\xD1\xB1\xB9\xBE\xEE \x8C"
     "c"},
    {950, u"中文測試", "\xA4\xA4\xA4\xE5\xB4\xFA\xB8\xD5"},
    {20127, u"plain ~\x7F\x01", "plain ~\x7F\x01"},
    {28591, u"ÄÖÜ¤\u0080", "\xC4\xD6\xDC\xA4\x80"},
    {28592, u"Łódź",
     "\xA3\xF3"
     "d\xBC"},
    {28593, u"Ħaġar",
     "\xA1"
     "a\xF5"
     "ar"},
    {28594, u"Ķēriņš", "\xD3\xBAri\xF1\xB9"},
    {28595, u"Привет", "\xBF\xE0\xD8\xD2\xD5\xE2"},
    {28596, u"سلام", "\xD3\xE4\xC7\xE5"},
    {28597, u"Ελλάδα", "\xC5\xEB\xEB\xDC\xE4\xE1"},
    {28598, u"שלום", "\xF9\xEC\xE5\xED"},
    {28599, u"ığdır",
     "\xFD\xF0"
     "d\xFDr"},
    {28603, u"Āžuolas", "\xC2\xFEuolas"},
    {28605, u"cœur €", "c\xBDur \xA4"},
    {65001, u"aß中\U0001F600", "a\xC3\x9F\xE4\xB8\xAD\xF0\x9F\x98\x80"},
};

/// A text that is written as `bytes` but not read from them.
const std::vector<Same> onlyWritten = {
    // A letter and its mark are one character where there is one.
    {1252, u"A\u0308e\u0301n\u0303", "\xC4\xE9\xF1"},
    {1250, u"c\u030Co\u030B", "\xE8\xF5"},
    {1253, u"\u03B1\u0301", "\xDC"},
    {28591, u"A\u030A\u0308", "\xC5#"},
    // In the others both are written, each as far as there is one.
    {1251, u"x\u0308", "x#"},
    {28595, u"x\u0323", "x#"},
    {1258, u"a\u0302\u0301", "\xE2\xEC"},
    {932, u"\u304B\u3099", "\x82\xAA"},
    {866, u"\u0438\u0306", "\xA9"},
    // A mark without a letter, and at the end.
    {28605, u"\u0301a", "#a"},
    // UTF-8 composes nothing.
    {65001, u"A\u0308", "A\xCC\x88"},
    // A missing character, once for each code unit.
    {1252, u"a中b", "a#b"},
    {1251, u"\u05D0\u4E2D", "##"},
    {20127, u"\u4E2D", "#"},
    {932, u"\U0001F600!", "##!"},
    {950, u"\U0001F600", "##"},
    {1252, u"\U0001F600", "##"},
    {936, u"a\u05D0", "a#"},
    // Halves of characters.
    {1252, u"\xD83Dz", "#z"},
    {949, u"z\xDE00", "z#"},
    {65001, u"\xD83Dz", "\xEF\xBF\xBDz"},
    {65001, u"\xDE00\xD83D", "\xEF\xBF\xBD\xEF\xBF\xBD"},
    {1252, u"", ""},
    {65001, u"", ""},
};

/// Bytes that are read as a text but not written so.
const std::vector<Same> onlyRead = {
    // Sequences that are truncated by the end, or by other bytes.
    {65001, u"a\uFFFD", "a\xE2\x82"},
    {65001, u"\uFFFD", "\xF0\x9F\x98"},
    {65001, u"\uFFFDz", "\xE2\x82z"},
    {65001, u"\uFFFD中", "\xE4\xB8\xE4\xB8\xAD"},
    {65001, u"\uFFFD\uFFFD", "\xFF\xFE"},
    {65001, u"\uFFFD\uFFFDz", "\xC0\x80z"},
    {65001, u"\uFEFFa",
     "\xEF\xBB\xBF"
     "a"},
    {932, u"a\u30FB", "a\x82"},
    {932, u"\u30FBz", "\x82 z"},
    {936, u"a?", "a\xB0"},
    {936, u"?z", "\xB0 z"},
    {949, u"?", "\xB0"},
    {950, u"中?", "\xA4\xA4\xA4"},
    // The bytes without a character that are control characters.
    {1252, u"\u0081\u008D\u009D", "\x81\x8D\x9D"},
    {1252, u"", ""},
    {65001, u"", ""},
    {932, u"", ""},
};

std::string Describe(const Same& row)
{
    return std::to_string(row.codePage) + " " + VyrPlatform::Encoding::ToUtf8(CString(row.text));
}

} // namespace

TEST(CodePage, TextOfThePageIsConvertedInBothDirections)
{
    for (const Same& row : sameBothWays) {
        EXPECT_EQ(ToText(row.codePage, row.bytes), row.text) << Describe(row);
        EXPECT_EQ(ToBytes(row.codePage, row.text), row.bytes) << Describe(row);
    }
}

TEST(CodePage, LetterWithMarkAndMissingCharactersAreWritten)
{
    for (const Same& row : onlyWritten)
        EXPECT_EQ(ToBytes(row.codePage, row.text), row.bytes) << Describe(row);
}

TEST(CodePage, CutSequencesAreRead)
{
    for (const Same& row : onlyRead)
        EXPECT_EQ(ToText(row.codePage, row.bytes), row.text) << Describe(row);
}

TEST(CodePage, AsciiIsUnchangedInEveryPage)
{
    std::string bytes;
    for (int byte = 1; byte < 0x80; ++byte)
        bytes += static_cast<char>(byte);
    const CString text = std::u16string_view(std::u16string(bytes.begin(), bytes.end()));
    for (const Same& row : sameBothWays) {
        EXPECT_EQ(ToText(row.codePage, bytes), text) << row.codePage;
        EXPECT_EQ(ToBytes(row.codePage, text), bytes) << row.codePage;
    }
}

TEST(CodePage, CharacterReadFromOneByteIsWrittenAsThatByte)
{
    for (const Same& row : sameBothWays) {
        // In the pages of two bytes most bytes are half a character; ASCII lacks the other bytes and reads them in its
        // own way.
        if (row.codePage == CodePage::utf8 || row.codePage == 20127 || (row.codePage >= 932 && row.codePage <= 950))
            continue;
        int count = 0;
        for (int byte = 0x80; byte < 0x100; ++byte) {
            const std::string bytes(1, static_cast<char>(byte));
            const CString text = ToText(row.codePage, bytes);
            ASSERT_EQ(text.GetLength(), 1);
            if (text[0] == u'\uFFFD' || (text[0] >= u'\uE000' && text[0] <= u'\uF8FF'))
                continue;
            ++count;
            EXPECT_EQ(ToBytes(row.codePage, text), bytes) << row.codePage << ' ' << byte;
        }
        EXPECT_GT(count, 80) << row.codePage;
    }
}

TEST(CodePage, DefaultCharacterIsTheCallersOwn)
{
    char bytes[8];
    ASSERT_EQ(CodePage::ToBytes(1252, u"a中", '?', bytes), 3U);
    EXPECT_STREQ(bytes, "a?");
    ASSERT_EQ(CodePage::ToBytes(949, u"a\u05D0b", '_', bytes), 4U);
    EXPECT_STREQ(bytes, "a_b");
}

TEST(CodePage, SizeIsToldWhereTheRoomIsTooSmall)
{
    for (const std::uint32_t codePage : {1252U, 932U, 65001U}) {
        char bytes[3] = "xy";
        EXPECT_EQ(CodePage::ToBytes(codePage, u"abc", '#', bytes), 4U);
        char16_t text[3] = u"xy";
        EXPECT_EQ(CodePage::ToText(codePage, "abc", text), 4U);
        EXPECT_EQ(CodePage::ToText(codePage, "ab", text), 3U);
        EXPECT_EQ(CString(text), u"ab");
    }
}

TEST(CodePage, UnknownPageConvertsNothing)
{
    // 65000 (UTF-7) and 54936 (GB 18030) do not take part in conversions with these rules, 1200 (UTF-16) in none.
    for (const std::uint32_t codePage : {12345U, 65000U, 54936U, 1200U, 0xFFFFFFFFU}) {
        EXPECT_EQ(ToText(codePage, "abc"), u"(none)") << codePage;
        EXPECT_EQ(ToBytes(codePage, u"abc"), "(none)") << codePage;
    }
}

TEST(CodePage, ZeroIsTheAnsiPage)
{
    const std::uint32_t ansi = CodePage::GetAnsi();
    EXPECT_EQ(ToText(0, "abc"), u"abc");
    EXPECT_EQ(ToBytes(0, u"a\u00E4\u4E2D"), ToBytes(ansi, u"a\u00E4\u4E2D"));
    EXPECT_EQ(ToText(0, "\xC3\xA4"), ToText(ansi, "\xC3\xA4"));
}

TEST(CodePage, LongTextIsConverted)
{
    CString text;
    std::string bytes;
    for (int i = 0; i < 100'000; ++i) {
        text += u"aö";
        bytes += "a\xF6";
    }
    EXPECT_TRUE(ToBytes(1252, text) == bytes);
    EXPECT_TRUE(ToText(1252, bytes) == text);
}
