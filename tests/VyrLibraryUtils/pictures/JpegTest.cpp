// JPEG: which segments are read, and what may be around them.
#include "Facts.h"

#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace VyrTests;

const Bytes Exif = ExifSegment(BuildTiff(PictureFacts{}));
const Bytes Jfif = JpegSegment(0xE0, Bytes("JFIF\0\1\1\0\0\1\0\1\0\0", 14));
const Bytes Xmp = JpegSegment(0xE1, Bytes("http://ns.adobe.com/xap/1.0/\0", 29) +
                                        "<x:xmpmeta exif:DateTimeOriginal='1999-01-01T00:00:00'/>");

TEST(Jpeg, GivesAllThreeTagsInBothByteOrders)
{
    for (const Endian endian : {Endian::Little, Endian::Big})
        EXPECT_EQ(FactsOf(BuildJpeg(PictureFacts{.endian = endian}, 1000)), BuiltFacts);
}

TEST(Jpeg, WithoutExifIsEmpty)
{
    EXPECT_EQ(FactsOf(BuildJpeg("")), NoFacts);
    EXPECT_EQ(FactsOf(BuildJpeg(Jfif + Xmp)), NoFacts);
}

TEST(Jpeg, XmpBeforeExifIsPassedOver)
{
    EXPECT_EQ(FactsOf(BuildJpeg(Jfif + Xmp + Exif)), BuiltFacts);
}

TEST(Jpeg, ExifAfterManyLongSegmentsIsFound)
{
    Bytes segments;
    for (int i = 0; i < 100; ++i)
        segments += JpegSegment(0xE2, Bytes(65533, static_cast<char>(i)));
    EXPECT_EQ(FactsOf(BuildJpeg(segments + Exif)), BuiltFacts);
}

TEST(Jpeg, ExifAfterTheLongestRunOfEmptySegmentsIsFound)
{
    Bytes segments;
    for (int i = 0; i < 10000; ++i)
        segments += JpegSegment(0xFE, "");
    EXPECT_EQ(FactsOf(BuildJpeg(segments + Exif)), BuiltFacts);
}

TEST(Jpeg, TheFirstExifSegmentThatHasTheTagCounts)
{
    const Bytes other = ExifSegment(BuildTiff(PictureFacts{"1999:09:09 09:09:09", "Other", "Other model"}));
    EXPECT_EQ(FactsOf(BuildJpeg(Exif + other)), BuiltFacts);
    const Bytes undated = ExifSegment(BuildTiff(PictureFacts{"", "Other", ""}));
    EXPECT_EQ(FactsOf(BuildJpeg(undated + Exif)), (Facts{"2024:07:19 18:45:03", "Other", "Model 1"}));
}

TEST(Jpeg, ExifInAnotherSegmentOrUnderAnotherNameDoesNotCount)
{
    const Bytes tiff = BuildTiff(PictureFacts{});
    EXPECT_EQ(FactsOf(BuildJpeg(JpegSegment(0xE2, Bytes("Exif\0\0", 6) + tiff))), NoFacts);
    EXPECT_EQ(FactsOf(BuildJpeg(JpegSegment(0xE1, Bytes("Exig\0\0", 6) + tiff))), NoFacts);
    EXPECT_EQ(FactsOf(BuildJpeg(JpegSegment(0xE1, tiff))), NoFacts);
}

TEST(Jpeg, TheByteBehindTheIdentifierMayBeAny)
{
    EXPECT_EQ(FactsOf(BuildJpeg(JpegSegment(0xE1, Bytes("Exif\0\xFF", 6) + BuildTiff(PictureFacts{})))), BuiltFacts);
}

TEST(Jpeg, FillBytesAndStrayBytesBetweenSegmentsArePassedOver)
{
    EXPECT_EQ(FactsOf(BuildJpeg(Bytes(500, '\xFF') + Exif)), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildJpeg(Jfif + Bytes(3, '\xFF') + Exif)), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildJpeg(Jfif + Bytes(3, '\0') + Exif)), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildJpeg(Jfif + Bytes("\xFF\0stray", 7) + Exif)), BuiltFacts);
}

TEST(Jpeg, MarkersWithoutALengthArePassedOver)
{
    EXPECT_EQ(FactsOf(BuildJpeg("\xFF\x01\xFF\xD0\xFF\xD7" + Exif)), BuiltFacts);
}

TEST(Jpeg, SegmentsBehindTheStartOfTheDataAreIgnored)
{
    EXPECT_EQ(FactsOf(BuildJpeg("") + Exif), NoFacts);
    EXPECT_EQ(FactsOf(BuildJpeg(JpegSegment(0xDA, "scan") + Exif)), NoFacts);
    EXPECT_EQ(FactsOf(BuildJpeg("\xFF\xD9" + Exif)), NoFacts);
}

TEST(Jpeg, LengthsThatCannotBeEndTheHeader)
{
    EXPECT_EQ(FactsOf(BuildJpeg(Bytes("\xFF\xE0\0\0", 4) + Exif)), NoFacts);
    EXPECT_EQ(FactsOf(BuildJpeg(Bytes("\xFF\xE0\0\1", 4) + Exif)), NoFacts);
}

TEST(Jpeg, ValuesOutsideTheirSegmentDoNotCount)
{
    const Bytes tiff = BuildTiff(PictureFacts{});
    const std::size_t model = tiff.find("Model 1");
    // The segment ends in the middle of the model, though the file continues.
    const Bytes cut = JpegSegment(0xE1, Bytes("Exif\0\0", 6) + tiff.substr(0, model + 3));
    EXPECT_EQ(FactsOf(BuildJpeg(cut + tiff.substr(model + 3))), (Facts{"", "Testmaker", ""}));
}

TEST(Jpeg, AFileOfFillBytesEndsAtOnce)
{
    EXPECT_EQ(FactsOf("\xFF\xD8" + Bytes(5'000'000, '\xFF')), NoFacts);
}

TEST(Jpeg, SegmentsWithoutAPictureAreRead)
{
    EXPECT_EQ(FactsOf("\xFF\x01"
                      "Exiv2" +
                      Exif + "\xFF\xD9"),
              BuiltFacts);
}

TEST(Jpeg, EveryBeginningIsRightOrEmpty)
{
    ExpectEveryBeginningIsRightOrEmpty(BuildJpeg(Jfif + Xmp + Exif), BuiltFacts);
}

} // namespace
