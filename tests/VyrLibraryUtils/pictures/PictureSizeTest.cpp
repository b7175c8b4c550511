// How many points a picture has, of each format that browsers show.
#include <VyrLibraryUtils/pictures/PictureSize.h>

#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <string>

namespace VyrLibraryUtils::Pictures {

static void PrintTo(const PictureSize& size, std::ostream* stream)
{
    *stream << size.width << " x " << size.height;
}

namespace {

using namespace VyrTests;

Bytes Little(std::uint64_t value, std::size_t width)
{
    return Number(value, width, Endian::Little);
}

Bytes Big(std::uint64_t value, std::size_t width)
{
    return Number(value, width, Endian::Big);
}

Bytes Frame(std::uint8_t marker, std::uint32_t width, std::uint32_t height)
{
    return JpegSegment(marker, "\x08" + Big(height, 2) + Big(width, 2) + "\x01\x01\x11");
}

Bytes WebP(std::string_view name, std::string_view data)
{
    return RiffChunk("RIFF", "WEBP" + RiffChunk(name, data));
}

Bytes Bmp(const Bytes& header)
{
    return "BM" + Bytes(12, '\0') + header + Bytes(40, '\0');
}

struct Case
{
    const char* what;
    Bytes bytes;
    PictureSize size;
};

std::vector<Case> Sound()
{
    return {
        {"JPEG", "\xFF\xD8" + Frame(0xC0, 640, 480), {640, 480}},
        {"progressive JPEG", "\xFF\xD8" + Frame(0xC2, 65535, 1), {65535, 1}},
        {"JPEG with tags", BuildJpeg(PictureFacts{}, 640), {2048, 80}},
        {"JPEG with tables first", "\xFF\xD8" + JpegSegment(0xC4, Bytes(20, '\x7')) + Frame(0xC1, 2, 3), {2, 3}},
        {"PNG", BuildPng({}), {1, 1}},
        {"GIF", "GIF89a" + Little(300, 2) + Little(200, 2) + Bytes(3, '\0'), {300, 200}},
        {"old GIF", "GIF87a" + Little(1, 2) + Little(2, 2), {1, 2}},
        {"extended WebP", WebP("VP8X", Bytes(4, '\0') + Little(1023, 3) + Little(766, 3)), {1024, 767}},
        {"WebP without loss", WebP("VP8L", "\x2F" + Little(99U | 49U << 14, 4)), {100, 50}},
        {"WebP with loss",
         WebP("VP8 ", "\x30\x01\x02\x9D\x01\x2A" + Little(320, 2) + Little(0x4000 | 240, 2)),
         {320, 240}},
        {"BMP", Bmp(Little(40, 4) + Little(7, 4) + Little(9, 4)), {7, 9}},
        {"BMP from top to bottom", Bmp(Little(40, 4) + Little(7, 4) + Little(0xFFFFFFF7U, 4)), {7, 9}},
        {"old BMP", Bmp(Little(12, 4) + Little(7, 2) + Little(9, 2)), {7, 9}},
    };
}

TEST(PictureSize, IsThatOfTheHead)
{
    for (const Case& sample : Sound())
        EXPECT_EQ(ReadPictureSizeOf(sample.bytes), sample.size) << sample.what;
}

TEST(PictureSize, OfACutOffHeadIsNotToldWrongly)
{
    for (const Case& sample : Sound())
        for (std::size_t length = 0; length < sample.bytes.size(); ++length) {
            const auto size = ReadPictureSizeOf(std::string(sample.bytes.substr(0, length)));
            EXPECT_TRUE(!size || *size == sample.size) << sample.what << ' ' << length;
        }
}

TEST(PictureSize, OfNothingIsNone)
{
    for (const Bytes& bytes :
         {Bytes(), Bytes("text"), "\xFF\xD8" + Frame(0xC0, 0, 480), "\xFF\xD8" + Frame(0xC0, 640, 0),
          "GIF89a" + Little(0, 2) + Little(200, 2), Bmp(Little(40, 4) + Little(0x80000000U, 4) + Little(9, 4)),
          Bmp(Little(40, 4) + Little(7, 4) + Little(0x80000000U, 4)), WebP("ALPH", Bytes(20, '\1')),
          WebP("VP8L", Bytes(20, '\1')), WebP("VP8 ", Bytes(20, '\1')), Bytes("\xFF\xD8\xFF\xD9"),
          BuildHeif({.item = ""}), BuildTiff(PictureFacts{})})
        EXPECT_EQ(ReadPictureSizeOf(bytes), std::nullopt) << testing::PrintToString(bytes.substr(0, 40));
}

} // namespace
} // namespace VyrLibraryUtils::Pictures
