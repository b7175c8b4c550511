// JPEG XL: the Exif box, bare and packed.
#include "Facts.h"

#include <VyrPlatform/documents/Brotli.h>
#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace VyrTests;

const Bytes Tiff = BuildTiff(PictureFacts{});
const Bytes NoDistance(4, '\0');

TEST(JpegXl, ABareBoxIsRead)
{
    EXPECT_EQ(FactsOf(BuildJpegXl(Box("Exif", NoDistance + Tiff))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildJpegXl(Box("Exif", ExifItem(Tiff)))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildJpegXl(LongBox("Exif", ExifItem(Tiff)))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildJpegXl(OpenBox("Exif", ExifItem(Tiff)))), BuiltFacts);
}

TEST(JpegXl, ABoxBehindTheCodestreamIsRead)
{
    EXPECT_EQ(FactsOf(BuildJpegXl("") + Box("Exif", ExifItem(Tiff))), BuiltFacts);
}

TEST(JpegXl, WithoutABoxAndWithoutAContainerIsEmpty)
{
    EXPECT_EQ(FactsOf(BuildJpegXl("")), NoFacts);
    EXPECT_EQ(FactsOf(BuildJpegXl(Box("xml ", Tiff))), NoFacts);
    EXPECT_EQ(FactsOf("\xFF\x0A" + Tiff), NoFacts);
}

TEST(JpegXl, APackedBoxIsReadWhereAnUnpackerIs)
{
    const Facts expected = VyrPlatform::Brotli::IsAvailable() ? BuiltFacts : NoFacts;
    EXPECT_EQ(FactsOf(BuildJpegXl(BrotliBox("Exif", NoDistance + Tiff))), expected);
    EXPECT_EQ(FactsOf(BuildJpegXl(BrotliBox("xml ", NoDistance + Tiff))), NoFacts);
}

TEST(JpegXl, ABareBoxBehindADamagedPackedOneIsRead)
{
    const Bytes damaged = Box("brob", "Exifno Brotli at all");
    EXPECT_EQ(FactsOf(BuildJpegXl(damaged + Box("Exif", ExifItem(Tiff)))), BuiltFacts);
}

TEST(JpegXl, OnlyTheFirstFewPackedBoxesAreTried)
{
    const Facts expected = VyrPlatform::Brotli::IsAvailable() ? BuiltFacts : NoFacts;
    const Bytes useless = BrotliBox("Exif", "useless");
    const Bytes useful = BrotliBox("Exif", NoDistance + Tiff);
    EXPECT_EQ(FactsOf(BuildJpegXl(useless + useless + useless + useful)), expected);
    EXPECT_EQ(FactsOf(BuildJpegXl(useless + useless + useless + useless + useful)), NoFacts);
}

TEST(JpegXl, EveryBeginningIsRightOrEmpty)
{
    ExpectEveryBeginningIsRightOrEmpty(BuildJpegXl(Box("Exif", ExifItem(Tiff))), BuiltFacts);
    if (VyrPlatform::Brotli::IsAvailable())
        ExpectEveryBeginningIsRightOrEmpty(BuildJpegXl(BrotliBox("Exif", NoDistance + Tiff)), BuiltFacts);
}

} // namespace
