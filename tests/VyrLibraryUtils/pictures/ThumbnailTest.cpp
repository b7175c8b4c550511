// The small picture in the tags of a picture, and how the picture is to be turned.
#include <VyrLibraryUtils/pictures/Picture.h>

#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace VyrTests;
using VyrLibraryUtils::Pictures::PictureTag;
using VyrLibraryUtils::Pictures::ReadPictureBytes;

constexpr Endian BothOrders[] = {Endian::Little, Endian::Big};

const Bytes thumbnail = BuildJpeg("", 640);

Bytes TiffWith(const Bytes& small, Endian endian = Endian::Little)
{
    TiffParts parts = TiffPartsOf({.endian = endian});
    parts.thumbnail = small;
    return BuildTiff(parts);
}

std::string ThumbnailIn(std::string_view picture)
{
    return ReadPictureBytes(picture, PictureTag::Thumbnail);
}

TEST(Thumbnail, IsGivenByteForByteWhateverThePictureIs)
{
    for (const Endian endian : BothOrders) {
        const Bytes tiff = TiffWith(thumbnail, endian);
        EXPECT_EQ(ThumbnailIn(tiff), thumbnail);
        EXPECT_EQ(ThumbnailIn(BuildJpeg(ExifSegment(tiff))), thumbnail);
        EXPECT_EQ(ThumbnailIn(BuildPng(PngChunk("eXIf", tiff))), thumbnail);
        EXPECT_EQ(ThumbnailIn(BuildWebP(RiffChunk("EXIF", tiff))), thumbnail);
        EXPECT_EQ(ThumbnailIn(BuildHeif({.item = ExifItem(tiff)})), thumbnail);
        EXPECT_EQ(ThumbnailIn(BuildRaf(BuildJpeg(ExifSegment(tiff)))), thumbnail);
    }
}

TEST(Thumbnail, OtherTagsStayAsTheyAre)
{
    EXPECT_EQ(ReadPictureBytes(TiffWith(thumbnail), PictureTag::Model), "Model 1");
    EXPECT_EQ(ReadPictureBytes(TiffWith(thumbnail), PictureTag::DateTimeOriginal), "2024:07:19 18:45:03");
}

TEST(Thumbnail, PictureWithoutOneHasNone)
{
    for (const FormatSample& sample : BuildEveryFormat({}))
        EXPECT_EQ(ThumbnailIn(sample.bytes), "") << sample.fileName;
    EXPECT_EQ(ThumbnailIn(""), "");
}

TEST(Thumbnail, WhatIsNoJpegOrTooLargeIsLeftAlone)
{
    EXPECT_EQ(ThumbnailIn(TiffWith("<svg onload=\"x()\"/>")), "");
    const auto ofSize = [](std::size_t size) {
        return thumbnail + Bytes(size - thumbnail.size(), '\0');
    };
    EXPECT_EQ(ThumbnailIn(TiffWith(ofSize(65536))).size(), 65536U);
    EXPECT_EQ(ThumbnailIn(TiffWith(ofSize(65537))), "");
}

TEST(Thumbnail, CutOffPictureHasNone)
{
    const Bytes tiff = TiffWith(thumbnail);
    for (std::size_t size = 0; size < tiff.size(); ++size)
        EXPECT_EQ(ThumbnailIn(std::string(tiff.substr(0, size))), "") << size;
}

TEST(Thumbnail, DamagedByteGivesAJpegWithinBoundsOrNothing)
{
    const Bytes sound = TiffWith(thumbnail);
    for (std::size_t at = 0; at < sound.size() - thumbnail.size(); ++at)
        for (const char flipped : {'\x01', '\x80', '\xFF'}) {
            Bytes tiff = sound;
            tiff[at] = static_cast<char>(tiff[at] ^ flipped);
            const std::string found = ThumbnailIn(tiff);
            EXPECT_TRUE(found.empty() || found.starts_with("\xFF\xD8\xFF")) << at;
            EXPECT_LE(found.size(), sound.size()) << at;
        }
}

TEST(Thumbnail, DirectoryBehindItselfHasNone)
{
    TiffParts parts = TiffPartsOf({});
    parts.exif.clear();
    Bytes tiff = BuildTiff(parts);
    tiff.replace(8 + 2 + 12 * parts.image.size(), 4, Number(8, 4, Endian::Little));
    EXPECT_EQ(ThumbnailIn(tiff), "");
}

TEST(Orientation, IsADigit)
{
    for (const Endian endian : BothOrders)
        for (int orientation = 1; orientation <= 8; ++orientation) {
            TiffParts parts;
            parts.endian = endian;
            parts.image.push_back({0x0112, 3, 1, Number(static_cast<std::uint64_t>(orientation), 2, endian)});
            EXPECT_EQ(ReadPictureBytes(BuildTiff(parts), PictureTag::Orientation), std::to_string(orientation));
        }
}

} // namespace
