// WebP: the Exif chunk of a RIFF file.
#include "Facts.h"

#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace VyrTests;

const Bytes Tiff = BuildTiff(PictureFacts{});

TEST(WebP, ExifWithAndWithoutJpegsIdentifierIsRead)
{
    EXPECT_EQ(FactsOf(BuildWebP(RiffChunk("EXIF", Tiff))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildWebP(RiffChunk("EXIF", Bytes("Exif\0\0", 6) + Tiff))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildWebP("")), NoFacts);
}

TEST(WebP, ChunksOfOddSizeAreFilledUp)
{
    EXPECT_EQ(FactsOf(BuildWebP(RiffChunk("ICCP", "odd") + RiffChunk("EXIF", Tiff))), BuiltFacts);
}

TEST(WebP, OtherRiffFilesAreEmpty)
{
    Bytes wave = BuildWebP(RiffChunk("EXIF", Tiff));
    wave.replace(8, 4, "WAVE");
    EXPECT_EQ(FactsOf(wave), NoFacts);
}

TEST(WebP, TheSizeInTheHeaderDoesNotMatter)
{
    Bytes webp = BuildWebP(RiffChunk("EXIF", Tiff));
    for (const std::uint32_t size : {0u, 4u, 0xFFFFFFFFu}) {
        webp.replace(4, 4, Number(size, 4, Endian::Little));
        EXPECT_EQ(FactsOf(webp), BuiltFacts);
    }
}

TEST(WebP, AGapOfZerosIsPassedOverButNotAFileOfZeros)
{
    EXPECT_EQ(FactsOf(BuildWebP(Bytes(8000, '\0') + RiffChunk("EXIF", Tiff))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildWebP(Bytes(8'000'000, '\0') + RiffChunk("EXIF", Tiff))), NoFacts);
}

TEST(WebP, AChunkBeyondTheFileEndsIt)
{
    EXPECT_EQ(FactsOf(BuildWebP("ALPH\xFF\xFF\xFF\xFF" + RiffChunk("EXIF", Tiff))), NoFacts);
}

TEST(WebP, EveryBeginningIsRightOrEmpty)
{
    ExpectEveryBeginningIsRightOrEmpty(BuildWebP(RiffChunk("EXIF", Tiff)), BuiltFacts);
}

} // namespace
