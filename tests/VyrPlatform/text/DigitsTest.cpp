// Bytes and numbers as digits, and what is read as none.
#include <VyrPlatform/text/Digits.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

namespace {

using namespace VyrPlatform;

TEST(DigitsHex, BytesComeBack)
{
    std::string bytes;
    for (int value = 0; value < 256; ++value)
        bytes += static_cast<char>(value);
    EXPECT_EQ(FromHex(ToHex(bytes)), bytes);
    EXPECT_EQ(ToHex("\x01\x9f\xa0"), "019fa0");
    EXPECT_EQ(ToHex(""), "");
    EXPECT_EQ(FromHex(""), "");
}

TEST(DigitsHex, NothingButResultsIsRead)
{
    for (const char* const text : {"0", "012", "0g", "g0", "0A", " 0", "-1", "0x"})
        EXPECT_EQ(FromHex(text), std::nullopt) << text;
}

TEST(DigitsReadWhole, ReadsTheWholeText)
{
    EXPECT_EQ(ReadWhole("0"), 0);
    EXPECT_EQ(ReadWhole("-17"), -17);
    EXPECT_EQ(ReadWhole("755", 8), 0755);
    EXPECT_EQ(ReadWhole("ff", 16), 0xFF);
    EXPECT_EQ(ReadWhole("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
}

TEST(DigitsReadWhole, OtherTextsAreNoNumbers)
{
    for (const char* const text : {"", "-", "+1", " 1", "1 ", "1.5", "a", "9223372036854775808"})
        EXPECT_EQ(ReadWhole(text), std::nullopt) << text;
    EXPECT_EQ(ReadWhole("8", 8), std::nullopt);
}

} // namespace
