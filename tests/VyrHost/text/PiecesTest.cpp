// Texts that are cut at marks, and digits in UTF-16.
#include <VyrHost/text/Pieces.h>

#include <gtest/gtest.h>

#include <optional>
#include <string_view>

namespace {

using namespace VyrHost::Text;

TEST(PiecesTakeUpTo, TakesThePartBeforeTheMark)
{
    std::u16string_view text = u"one;;two";
    EXPECT_EQ(TakeUpTo(text, u';'), u"one");
    EXPECT_EQ(TakeUpTo(text, u';'), u"");
    EXPECT_EQ(TakeUpTo(text, u';'), u"two");
    EXPECT_EQ(text, u"");
    EXPECT_EQ(TakeUpTo(text, u';'), u"");
}

TEST(PiecesDigits, AreReadAndWritten)
{
    EXPECT_EQ(ReadWhole(u"-12"), -12);
    EXPECT_EQ(ReadWhole(u"1f", 16), 0x1F);
    EXPECT_EQ(ToHex("\x0a~"), u"0a7e");
    EXPECT_EQ(FromHex(u"0a7e"), "\x0a~");
}

TEST(PiecesDigits, OtherUnitsAreNone)
{
    // Their low bytes are digits.
    EXPECT_EQ(ReadWhole(u"\u0131"), std::nullopt);
    EXPECT_EQ(FromHex(u"\u0130\u0131"), std::nullopt);
    EXPECT_EQ(ReadWhole(u"1\u0662"), std::nullopt);
}

} // namespace
