// RAF: the JPEG that it embeds.
#include "Facts.h"

#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace VyrTests;

constexpr std::size_t OffsetField = 84;
constexpr std::size_t LengthField = 88;

TEST(Raf, TheEmbeddedJpegsTagsAreRead)
{
    for (const Endian endian : {Endian::Little, Endian::Big})
        EXPECT_EQ(FactsOf(BuildRaf(BuildJpeg(PictureFacts{.endian = endian}))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildRaf(BuildJpeg(""))), NoFacts);
    EXPECT_EQ(FactsOf(BuildRaf(BuildTiff(PictureFacts{}))), NoFacts);
}

TEST(Raf, OffsetsAndLengthsOutsideTheFileAreRefused)
{
    const Bytes raf = BuildRaf(BuildJpeg(PictureFacts{}));
    for (const std::uint64_t number : {0u, 1u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        Bytes moved = raf;
        moved.replace(OffsetField, 4, Number(number, 4, Endian::Big));
        EXPECT_EQ(FactsOf(moved), NoFacts);
    }
    Bytes longer = raf;
    longer.replace(LengthField, 4, Number(0xFFFFFFFF, 4, Endian::Big));
    EXPECT_EQ(FactsOf(longer), BuiltFacts);
    Bytes shorter = raf;
    shorter.replace(LengthField, 4, Number(20, 4, Endian::Big));
    EXPECT_EQ(FactsOf(shorter), NoFacts);
}

TEST(Raf, EveryBeginningIsRightOrEmpty)
{
    ExpectEveryBeginningIsRightOrEmpty(BuildRaf(BuildJpeg(PictureFacts{})), BuiltFacts);
}

} // namespace
