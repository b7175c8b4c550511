// Unpacking of Brotli data, where the system supports it.
#include <VyrPlatform/documents/Brotli.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

namespace Brotli = VyrPlatform::Brotli;

/// "abcabcabc..." 3000 characters, packed by the reference implementation.
constexpr std::string_view Packed("\x1F\xB7\x0B\xF8\x25\xC3\xC4\xC6\xE2\xB3\x20\xE0\x6D\x00\x40\x03", 16);

std::string Original()
{
    std::string original;
    for (int i = 0; i < 1000; ++i)
        original += "abc";
    return original;
}

TEST(Brotli, UnpacksUpToTheLimitWhereAnUnpackerIs)
{
    const std::string expected = Brotli::IsAvailable() ? Original() : std::string();
    EXPECT_EQ(Brotli::Unpack(Packed, 1'000'000), expected);
    EXPECT_EQ(Brotli::Unpack(Packed, 3000), expected);
    EXPECT_EQ(Brotli::Unpack(Packed, 2999), expected.substr(0, 2999));
    EXPECT_EQ(Brotli::Unpack(Packed, 0), "");
}

TEST(Brotli, DamagedDataGivesAtMostItsIntactBeginning)
{
    for (std::size_t size = 0; size < Packed.size(); ++size)
        EXPECT_TRUE(Original().starts_with(Brotli::Unpack(Packed.substr(0, size), 1'000'000)));
    EXPECT_EQ(Brotli::Unpack("\xFF\xFF\xFF\xFF", 1'000'000), "");
}

} // namespace
