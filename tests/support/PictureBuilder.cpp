// Writes pictures from their formats' descriptions, independently of the code that reads them.
// g++ 12 warns of joined strings that overlap where none do (GCC bug 105651).
#pragma GCC diagnostic ignored "-Wrestrict"
#include <tests/support/PictureBuilder.h>

#include <algorithm>

namespace VyrTests {
namespace {

constexpr std::uint16_t AsciiType = 2;
constexpr std::uint16_t ShortType = 3;
constexpr std::uint16_t LongType = 4;
constexpr std::uint16_t RationalType = 5;
constexpr std::uint16_t UndefinedType = 7;
constexpr std::uint16_t ExifLinkTag = 0x8769;

TiffEntry ShortEntry(std::uint16_t tag, std::uint16_t value, Endian endian)
{
    return {tag, ShortType, 1, Number(value, 2, endian)};
}

TiffEntry RationalEntry(std::uint16_t tag, std::uint32_t numerator, std::uint32_t denominator, Endian endian)
{
    return {tag, RationalType, 1, Number(numerator, 4, endian) + Number(denominator, 4, endian)};
}

void AddText(std::vector<TiffEntry>& entries, std::uint16_t tag, const std::string& text)
{
    if (!text.empty())
        entries.push_back(AsciiEntry(tag, text));
}

/// The directory that begins at `offset`, its longer values right behind it.
Bytes Directory(std::vector<TiffEntry> entries, std::size_t offset, Endian endian)
{
    std::stable_sort(entries.begin(), entries.end(),
                     [](const TiffEntry& left, const TiffEntry& right) { return left.tag < right.tag; });
    Bytes table = Number(entries.size(), 2, endian);
    Bytes values;
    const std::size_t valuesOffset = offset + 2 + 12 * entries.size() + 4;
    for (const TiffEntry& entry : entries) {
        table += Number(entry.tag, 2, endian) + Number(entry.type, 2, endian) + Number(entry.count, 4, endian);
        if (entry.value.size() <= 4) {
            table += entry.value + Bytes(4 - entry.value.size(), '\0');
        } else {
            table += Number(valuesOffset + values.size(), 4, endian);
            values += entry.value + Bytes(entry.value.size() % 2, '\0');
        }
    }
    return table + Number(0, 4, endian) + values;
}

} // namespace

Bytes Number(std::uint64_t value, std::size_t width, Endian endian)
{
    Bytes bytes;
    for (std::size_t i = 0; i < width; ++i)
        bytes += static_cast<char>(value >> 8 * (endian == Endian::Little ? i : width - 1 - i) & 0xFF);
    return bytes;
}

TiffEntry AsciiEntry(std::uint16_t tag, std::string_view text)
{
    return {tag, AsciiType, static_cast<std::uint32_t>(text.size() + 1), Bytes(text) + '\0'};
}

Bytes BuildTiff(const TiffParts& parts)
{
    const Bytes plain = parts.endian == Endian::Little ? Bytes("II*\0", 4) : Bytes("MM\0*", 4);
    const std::size_t first = 8 + parts.afterHeader.size();
    const Bytes header =
        (parts.signature.empty() ? plain : parts.signature) + Number(first, 4, parts.endian) + parts.afterHeader;
    if (parts.exif.empty())
        return header + Directory(parts.image, first, parts.endian);

    std::vector<TiffEntry> image = parts.image;
    image.push_back({ExifLinkTag, LongType, 1, Bytes(4, '\0')});
    const std::size_t second = first + Directory(image, first, parts.endian).size();
    image.back().value = Number(second, 4, parts.endian);
    return header + Directory(image, first, parts.endian) + Directory(parts.exif, second, parts.endian);
}

TiffParts TiffPartsOf(const PictureFacts& facts)
{
    TiffParts parts;
    parts.endian = facts.endian;
    AddText(parts.image, 0x010F, facts.make);
    AddText(parts.image, 0x0110, facts.model);
    parts.image.push_back(ShortEntry(0x0112, 1, facts.endian));
    parts.image.push_back(RationalEntry(0x011A, 72, 1, facts.endian));
    parts.image.push_back(RationalEntry(0x011B, 72, 1, facts.endian));
    parts.image.push_back(ShortEntry(0x0128, 2, facts.endian));
    // A file that was edited later: never to be taken for the moment of the picture.
    parts.image.push_back(AsciiEntry(0x0132, "2031:12:30 01:02:03"));
    parts.exif.push_back(RationalEntry(0x829A, 1, 250, facts.endian));
    parts.exif.push_back({0x9000, UndefinedType, 4, "0232"});
    AddText(parts.exif, 0x9003, facts.dateTimeOriginal);
    parts.exif.push_back(AsciiEntry(0x9004, "2032:11:29 04:05:06"));
    parts.exif.push_back(ShortEntry(0xA001, 1, facts.endian));
    return parts;
}

Bytes BuildTiff(const PictureFacts& facts)
{
    return BuildTiff(TiffPartsOf(facts));
}

Bytes JpegSegment(std::uint8_t marker, std::string_view payload)
{
    return Bytes("\xFF") + static_cast<char>(marker) + Number(payload.size() + 2, 2, Endian::Big) + Bytes(payload);
}

Bytes ExifSegment(std::string_view tiff)
{
    return JpegSegment(0xE1, Bytes("Exif\0\0", 6) + Bytes(tiff));
}

Bytes BuildJpeg(std::string_view segments, std::size_t dataSize)
{
    // One grey component; each Huffman table has a single code of one bit, so a black block takes two zero bits, a byte
    // four blocks, and a row of 256 blocks 64 bytes.
    constexpr std::size_t rowSize = 64;
    const std::size_t rows = std::clamp<std::size_t>(dataSize / rowSize, 1, 8000);
    const Bytes quantization = JpegSegment(0xDB, Bytes(1, '\0') + Bytes(64, '\1'));
    const Bytes frame = JpegSegment(0xC0, "\x08" + Number(rows * 8, 2, Endian::Big) + Number(2048, 2, Endian::Big) +
                                              Bytes("\x01\x01\x11\x00", 4));
    const Bytes oneCode = Bytes("\x01") + Bytes(15, '\0') + Bytes(1, '\0');
    const Bytes tables = JpegSegment(0xC4, Bytes(1, '\x00') + oneCode) + JpegSegment(0xC4, Bytes(1, '\x10') + oneCode);
    const Bytes scan = JpegSegment(0xDA, Bytes("\x01\x01\x00\x00\x3F\x00", 6)) + Bytes(rows * rowSize, '\0');
    return "\xFF\xD8" + Bytes(segments) + quantization + frame + tables + scan + "\xFF\xD9";
}

Bytes BuildJpeg(const PictureFacts& facts, std::size_t dataSize)
{
    return BuildJpeg(ExifSegment(BuildTiff(facts)), dataSize);
}

} // namespace VyrTests
