// The character classes, compared with the C library's for each code unit.
#include <VyrLibraryUtils/RegexUtils.h>

#include <gtest/gtest.h>

#include <cctype>

using VyrLibraryUtils::RegexUtils;

namespace {

TEST(RegexUtils, AgreesWithTheClassesOfAsciiForEveryUnit)
{
    for (int unit = 1; unit <= 0xFFFF; ++unit) {
        const CString text(static_cast<char16_t>(unit), 3);
        const bool isAscii = unit < 128;
        ASSERT_EQ(RegexUtils::IsHex(text), isAscii && std::isxdigit(unit) ? 1 : 0) << unit;
        ASSERT_EQ(RegexUtils::IsAlphabetNumber(text), isAscii && std::isalnum(unit) ? 1 : 0) << unit;
        ASSERT_EQ(RegexUtils::IsSymbol(text), isAscii && std::ispunct(unit) ? 1 : 0) << unit;
    }
}

TEST(RegexUtils, WantsTheWholeTextOfTheClass)
{
    EXPECT_EQ(RegexUtils::IsHex(u"00fFA9"), 1);
    EXPECT_EQ(RegexUtils::IsHex(u"00fFG9"), 0);
    EXPECT_EQ(RegexUtils::IsHex(u" 0"), 0);
    EXPECT_EQ(RegexUtils::IsAlphabetNumber(u"KB2999226"), 1);
    EXPECT_EQ(RegexUtils::IsAlphabetNumber(u"a b"), 0);
    EXPECT_EQ(RegexUtils::IsSymbol(u"{-}"), 1);
    EXPECT_EQ(RegexUtils::IsSymbol(u"{a}"), 0);
    EXPECT_EQ(RegexUtils::IsSymbol(std::u16string_view(u"!\0", 2)), 0);
}

TEST(RegexUtils, EmptyTextIsInNoClass)
{
    EXPECT_EQ(RegexUtils::IsHex(u""), 0);
    EXPECT_EQ(RegexUtils::IsAlphabetNumber(u""), 0);
    EXPECT_EQ(RegexUtils::IsSymbol(u""), 0);
}

} // namespace
