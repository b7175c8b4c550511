// PNG: the Exif chunk at any place, and the text chunks of older programs.
#include "Facts.h"

#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace VyrTests;

const Bytes Tiff = BuildTiff(PictureFacts{});
const Bytes ExifKeyword("Raw profile type exif\0", 22);

/// The raw profile of such a structure, packed by zlib: once with a code of its own, once with the fixed code.
constexpr std::string_view DynamicCode(
    "\x78\xDA\x6D\x51\x5B\x92\xC4\x20\x08\xFC\xF7\x14\x7B\x04\x04\x44\x3D\x8E\xB3\x93\x54\xED\x0D\xE6\xF8\xD3\x28\xEE"
    "\x26\x53\x4B\x55\x02\x34\x0F\xBB\x35\x1D\xAF\x9F\x33\x7D\xB9\x71\xD3\xA4\xA5\x36\xEB\x66\x04\xD3\xAE\x9D\x07\x82"
    "\x46\xCB\xDC\x9F\x94\x89\xE1\xC7\x82\xEC\x58\x3E\x53\xE0\xD1\x9B\x6A\x04\x99\x51\x90\xD5\xB1\x3B\xA7\x1B\x88\xCA"
    "\x5F\xBE\xCF\xC8\x8F\x3B\x9E\x5A\x54\xB8\x7D\x2C\xE2\xE5\x84\xD7\xC9\x59\x57\xDE\xA3\x6C\xBD\x55\xD2\xCB\xA2\x11"
    "\x0D\xDB\x8A\x5A\xA9\x52\xD5\x9E\x96\xED\x81\x18\x4B\xF4\x69\xA7\x01\xB7\x6F\x26\xC1\xA0\xB6\x3B\x6B\xCF\xD3\x15"
    "\x10\x16\x12\x91\x2C\x03\x1F\xE3\x2F\x02\x32\xC0\x1C\xA1\x89\xA0\xEE\xA7\x81\xD9\x68\x7C\x93\x76\xD8\xE6\x02\xD2"
    "\xD5\xD7\xC7\x52\x1F\x14\x08\x93\x4E\x57\x69\x47\x5C\x36\x5E\xE6\x86\x27\xE2\xD8\x89\x5B\xFD\xEF\xB2\x7F\x2D\xF2"
    "\x73\x5C\xD8\xB3\xE8\x64\x59\x65\x24\xD0\xEE\xAE\x5C\x1A\x20\x95\xB2\xE9\x87\x4C\x9E\x32\x5D\x1A\xCF\x3E\x8A\xD1"
    "\xD5\x07\x35\xE9\x0D\xAC\xE3\x77\x0F",
    233);
constexpr std::string_view FixedCode(
    "\x78\x01\xE3\x4A\xAD\xC8\x4C\xE3\x52\x00\x01\x23\x0B\x13\x2E\x13\x53\x73\x0B\x33\x4B\x33\x33\x03\x20\x30\xB1\x34"
    "\xB1\x34\x4A\x04\x32\x2C\x0C\x20\x00\x44\xA7\x19\x18\x1A\x18\x01\xE9\x44\x88\x90\x59\x2A\x84\x36\x34\x80\x8A\x43"
    "\xD5\x72\x99\x43\x19\x86\x46\x40\x09\x63\x88\x0A\x98\x4A\x30\x95\x08\x64\x99\x22\xF8\x30\x3B\x0C\x93\x50\xC5\xB9"
    "\x2C\xA0\x32\x46\x16\x68\x06\x19\x41\x28\x63\x23\x88\xCD\x86\x26\x10\xBE\x25\x54\xDA\xCC\xD2\xC2\xDC\xC0\x04\xC9"
    "\xA0\x44\xA8\x02\x18\x30\x35\x31\x33\x35\x37\x36\x37\x31\x4B\x31\x33\x34\x4B\x02\xB2\x81\x86\x98\xA4\x98\xA5\x99"
    "\x01\xC5\xCD\x92\x8D\x0C\x8C\x81\x1A\x4D\x2C\x50\x5D\x0D\xE2\x73\x21\x0B\x18\x1B\x19\x1B\x18\x1B\x1B\x1B\x1A\x27"
    "\x02\xB1\x11\x90\x34\x36\x06\x3A\x06\x28\x06\x12\x31\x00\x8B\x00\xE5\x41\xB6\x01\x5D\x96\x68\x61\x84\xE2\xB5\x54"
    "\x33\x98\x5B\x80\x8E\x36\x07\x19\x0F\x35\x14\xA4\xD1\x18\xE8\x31\x63\x4B\x03\x64\xAF\xA5\x42\x03\x1B\x18\x33\x28"
    "\xE2\x5C\x06\x46\x50\x33\x81\xA1\x8A\x2D\xB0\xE1\x00\xCA\x4F\x4B\x44\x72\xBD\x91\xB1\x09\xD8\x95\xE6\xC6\x89\x5C"
    "\x40\x67\x5B\x82\x7C\x6E\x6C\x01\x14\x32\x31\x36\x85\x39\x1F\xEA\x4D\x23\xB0\x37\x41\x5E\x33\x02\xAB\x33\x80\x6A"
    "\x85\xA8\x03\xFA\x86\x0B\x00\xAC\xE3\x77\x0F",
    291);

TEST(Png, ExifBeforeOrAfterTheDataIsFound)
{
    EXPECT_EQ(FactsOf(BuildPng(PngChunk("eXIf", Tiff))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildPng("", PngChunk("eXIf", Tiff))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildPng("")), NoFacts);
}

TEST(Png, ExifBehindManyDataChunksIsFound)
{
    Bytes data;
    for (int i = 0; i < 500; ++i)
        data += PngChunk("IDAT", Bytes(8192, '\x55'));
    EXPECT_EQ(FactsOf(BuildPng("", data + PngChunk("eXIf", Tiff))), BuiltFacts);
}

TEST(Png, ChunksBehindTheEndAreIgnored)
{
    EXPECT_EQ(FactsOf(BuildPng("") + PngChunk("eXIf", Tiff)), NoFacts);
}

TEST(Png, AWrongChecksumDoesNotMatter)
{
    Bytes chunk = PngChunk("eXIf", Tiff);
    chunk.back() = static_cast<char>(chunk.back() + 1);
    EXPECT_EQ(FactsOf(BuildPng(chunk)), BuiltFacts);
}

TEST(Png, JpegsIdentifierBeforeTheStructureIsPassedOver)
{
    EXPECT_EQ(FactsOf(BuildPng(PngChunk("eXIf", Bytes("Exif\0\0", 6) + Tiff))), BuiltFacts);
}

TEST(Png, TextProfilesAreRead)
{
    EXPECT_EQ(FactsOf(BuildPng(PngChunk("tEXt", ExifKeyword + RawProfile(Tiff)))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildPng(PngChunk("tEXt", Bytes("Raw profile type APP1\0", 22) + RawProfile(Tiff)))), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildPng(PngChunk("tEXt", Bytes("Raw profile type iptc\0", 22) + RawProfile(Tiff)))), NoFacts);
    EXPECT_EQ(FactsOf(BuildPng(PngChunk("zTXt", ExifKeyword + '\0' + ZlibStored(RawProfile(Tiff))))), BuiltFacts);
}

TEST(Png, PackedTextProfilesAreUnpacked)
{
    for (const std::string_view packed : {DynamicCode, FixedCode}) {
        const auto factsOf = [](std::string_view data) {
            return FactsOf(BuildPng(PngChunk("zTXt", ExifKeyword + '\0' + Bytes(data))));
        };
        EXPECT_EQ(factsOf(packed), BuiltFacts);
        for (std::size_t size = 0; size < packed.size(); ++size)
            ExpectRightOrEmpty(factsOf(packed.substr(0, size)), BuiltFacts);
    }
}

TEST(Png, DamagedPackedProfilesEndWithoutHarm)
{
    for (const std::string_view packed : {DynamicCode, FixedCode})
        for (std::size_t place = 0; place < packed.size(); ++place)
            for (int bit = 0; bit < 8; ++bit) {
                Bytes damaged(packed);
                damaged[place] = static_cast<char>(damaged[place] ^ 1 << bit);
                const Facts facts = FactsOf(BuildPng(PngChunk("zTXt", ExifKeyword + '\0' + damaged)));
                EXPECT_LE(facts.make.size(), 65535u);
            }
}

TEST(Png, AProfileThatUnpacksToMuchMoreIsCut)
{
    // A stored block, over and over, of nothing but zeros: no line ends in it, so there is no profile.
    const Bytes packed = ZlibStored(Bytes(20'000'000, '0'));
    EXPECT_EQ(FactsOf(BuildPng(PngChunk("zTXt", ExifKeyword + '\0' + packed))), NoFacts);
}

TEST(Png, DamagedTextProfilesAreEmpty)
{
    for (const std::string text :
         {"", "\n", "\nexif\n", "\nexif\n 8\n", "\nexif\n 8\n4", "no line at all", "\n\n\nzz\n"})
        EXPECT_EQ(FactsOf(BuildPng(PngChunk("tEXt", ExifKeyword + text))), NoFacts) << text;
}

TEST(Png, OnlyTheFirstFewPackedProfilesAreTried)
{
    const Bytes useless = PngChunk("zTXt", ExifKeyword + '\0' + ZlibStored("useless"));
    const Bytes useful = PngChunk("zTXt", ExifKeyword + '\0' + ZlibStored(RawProfile(Tiff)));
    EXPECT_EQ(FactsOf(BuildPng(useless + useless + useless + useful)), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildPng(useless + useless + useless + useless + useful)), NoFacts);
}

TEST(Png, AnInvalidChunkNameEndsTheFile)
{
    EXPECT_EQ(FactsOf(BuildPng(Bytes(64, '\0') + PngChunk("eXIf", Tiff))), NoFacts);
}

TEST(Png, ALengthBeyondTheFileEndsIt)
{
    EXPECT_EQ(FactsOf(BuildPng(Bytes("\x7F\xFF\xFF\xFFtIME", 8) + PngChunk("eXIf", Tiff))), NoFacts);
}

TEST(Png, EveryBeginningIsRightOrEmpty)
{
    ExpectEveryBeginningIsRightOrEmpty(BuildPng(PngChunk("eXIf", Tiff)), BuiltFacts);
    ExpectEveryBeginningIsRightOrEmpty(BuildPng(PngChunk("zTXt", ExifKeyword + '\0' + ZlibStored(RawProfile(Tiff)))),
                                       BuiltFacts);
}

} // namespace
