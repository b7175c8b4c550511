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

std::uint32_t Crc32(std::string_view bytes)
{
    std::uint32_t remainder = 0xFFFFFFFF;
    for (const char byte : bytes) {
        remainder ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            remainder = remainder >> 1 ^ (remainder & 1 ? 0xEDB88320 : 0);
    }
    return ~remainder;
}

std::uint32_t Adler32(std::string_view bytes)
{
    std::uint32_t sum = 1;
    std::uint32_t sumOfSums = 0;
    for (const char byte : bytes) {
        sum = (sum + static_cast<unsigned char>(byte)) % 65521;
        sumOfSums = (sumOfSums + sum) % 65521;
    }
    return sumOfSums << 16 | sum;
}

Bytes Big(std::uint64_t value, std::size_t width)
{
    return Number(value, width, Endian::Big);
}

/// The content of a box that begins with a version and flags.
Bytes Versioned(std::uint8_t version, std::string_view content)
{
    return Big(version, 1) + Bytes(3, '\0') + Bytes(content);
}

Bytes ItemEntry(const HeifParts& parts, std::uint32_t id, std::string_view type)
{
    const std::size_t idWidth = parts.entryVersion == 2 ? 2 : 4;
    return Box("infe", Versioned(parts.entryVersion, Big(id, idWidth) + Big(0, 2) + Bytes(type) + '\0'));
}

struct Piece
{
    std::uint64_t offset;
    std::uint64_t length;
};

/// One item of an iloc box. Half of the smallest offset, when a base is written at all, goes into the base.
Bytes ItemLocation(const HeifParts& parts, std::uint32_t id, const std::vector<Piece>& pieces)
{
    const std::uint64_t base = parts.baseWidth == 0 ? 0 : pieces.front().offset / 2;
    Bytes item = Big(id, parts.locationVersion < 2 ? 2 : 4);
    if (parts.locationVersion > 0)
        item += Big(parts.constructionMethod, 2);
    item += Big(0, 2) + Big(base, parts.baseWidth) + Big(pieces.size(), 2);
    for (const Piece& piece : pieces)
        item += Big(0, parts.locationVersion == 0 ? 0 : parts.indexWidth) +
                Big(piece.offset - base, parts.offsetWidth) + Big(piece.length, parts.lengthWidth);
    return item;
}

Bytes ItemLocationBox(const HeifParts& parts, const std::vector<Piece>& pieces)
{
    const auto widths = static_cast<std::uint16_t>(parts.offsetWidth << 12 | parts.lengthWidth << 8 |
                                                   parts.baseWidth << 4 | parts.indexWidth);
    const std::uint32_t otherItem = parts.itemId + 1;
    return Box("iloc",
               Versioned(parts.locationVersion,
                         Big(widths, 2) + Big(2, parts.locationVersion < 2 ? 2 : 4) +
                             ItemLocation(parts, otherItem, {{pieces.front().offset, 0}, {pieces.front().offset, 1}}) +
                             ItemLocation(parts, parts.itemId, pieces)));
}

/// The meta box, for an item whose pieces stand where `pieces` says.
Bytes MetaBox(const HeifParts& parts, const std::vector<Piece>& pieces, std::string_view itemData)
{
    const Bytes handler = Box("hdlr", Versioned(0, Bytes(4, '\0') + "pict" + Bytes(13, '\0')));
    const Bytes entries = ItemEntry(parts, parts.itemId + 1, "hvc1") + ItemEntry(parts, parts.itemId, "Exif");
    const Bytes itemInfo = Box("iinf", Versioned(0, Big(2, 2) + entries));
    const Bytes data = parts.constructionMethod == 1 ? Box("idat", itemData) : Bytes();
    return Box("meta", Versioned(0, handler + itemInfo + ItemLocationBox(parts, pieces) + data));
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
    std::vector<TiffEntry> image = parts.image;
    Bytes exif;
    if (!parts.exif.empty()) {
        image.push_back({ExifLinkTag, LongType, 1, Bytes(4, '\0')});
        const std::size_t second = first + Directory(image, first, parts.endian).size();
        image.back().value = Number(second, 4, parts.endian);
        exif = Directory(parts.exif, second, parts.endian);
    }
    Bytes tiff = header + Directory(image, first, parts.endian) + exif;
    if (parts.thumbnail.empty())
        return tiff;
    tiff.replace(first + 2 + 12 * image.size(), 4, Number(tiff.size(), 4, parts.endian));
    constexpr std::size_t directorySize = 2 + 3 * 12 + 4;
    const std::size_t place = tiff.size() + directorySize;
    return tiff +
           Directory({ShortEntry(0x0103, 6, parts.endian),
                      {0x0201, LongType, 1, Number(place, 4, parts.endian)},
                      {0x0202, LongType, 1, Number(parts.thumbnail.size(), 4, parts.endian)}},
                     tiff.size(), parts.endian) +
           parts.thumbnail;
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

Bytes PngChunk(std::string_view type, std::string_view data)
{
    const Bytes checked = Bytes(type) + Bytes(data);
    return Big(data.size(), 4) + checked + Big(Crc32(checked), 4);
}

Bytes BuildPng(std::string_view before, std::string_view after)
{
    const Bytes header = PngChunk("IHDR", Big(1, 4) + Big(1, 4) + Bytes("\x08\x00\x00\x00\x00", 5));
    const Bytes data = PngChunk("IDAT", ZlibStored(std::string_view("\0\0", 2)));
    return "\x89PNG\r\n\x1A\n" + header + Bytes(before) + data + Bytes(after) + PngChunk("IEND", {});
}

Bytes ZlibStored(std::string_view data)
{
    constexpr std::size_t longestBlock = 65535;
    Bytes stream = "\x78\x01";
    for (std::string_view left = data; !left.empty(); left.remove_prefix(std::min(left.size(), longestBlock))) {
        const std::string_view block = left.substr(0, longestBlock);
        stream += Big(block.size() == left.size() ? 1 : 0, 1) + Number(block.size(), 2, Endian::Little) +
                  Number(~block.size(), 2, Endian::Little) + Bytes(block);
    }
    return stream + Big(Adler32(data), 4);
}

Bytes RawProfile(std::string_view tiff)
{
    const Bytes block = Bytes("Exif\0\0", 6) + Bytes(tiff);
    Bytes text = "\nexif\n" + Bytes(8 - std::min<std::size_t>(8, std::to_string(block.size()).size()), ' ') +
                 std::to_string(block.size());
    constexpr std::size_t bytesInLine = 36;
    for (std::size_t i = 0; i < block.size(); ++i) {
        const auto byte = static_cast<unsigned char>(block[i]);
        if (i % bytesInLine == 0)
            text += '\n';
        text += "0123456789abcdef"[byte >> 4];
        text += "0123456789abcdef"[byte & 0xF];
    }
    return text + '\n';
}

Bytes RiffChunk(std::string_view name, std::string_view data)
{
    return Bytes(name) + Number(data.size(), 4, Endian::Little) + Bytes(data) + Bytes(data.size() % 2, '\0');
}

Bytes BuildWebP(std::string_view chunks)
{
    constexpr std::string_view exifFlagAndSize("\x08\0\0\0\0\0\0\0\0\0", 10);
    // A lossless picture of one point.
    constexpr std::string_view point("\x2F\0\0\0\0\x07\x10\x11\x11\x88\x88\x08", 12);
    const Bytes content = "WEBP" + RiffChunk("VP8X", exifFlagAndSize) + RiffChunk("VP8L", point) + Bytes(chunks);
    return RiffChunk("RIFF", content);
}

Bytes Box(std::string_view type, std::string_view content)
{
    return Big(content.size() + 8, 4) + Bytes(type) + Bytes(content);
}

Bytes LongBox(std::string_view type, std::string_view content)
{
    return Big(1, 4) + Bytes(type) + Big(content.size() + 16, 8) + Bytes(content);
}

Bytes OpenBox(std::string_view type, std::string_view content)
{
    return Big(0, 4) + Bytes(type) + Bytes(content);
}

Bytes ExifItem(std::string_view tiff)
{
    const Bytes identifier("Exif\0\0", 6);
    return Big(identifier.size(), 4) + identifier + Bytes(tiff);
}

Bytes BuildHeif(const HeifParts& parts)
{
    const Bytes fileType = Box("ftyp", Bytes(parts.brand) + Big(0, 4) + "mif1" + Bytes(parts.brand));
    // The pieces stand in reverse, with two bytes of something else behind each.
    const std::size_t pieceSize = (parts.item.size() + parts.pieces - 1) / parts.pieces;
    std::vector<Piece> pieces(parts.pieces);
    Bytes data;
    for (std::size_t i = parts.pieces; i-- > 0;) {
        const Bytes piece = parts.item.substr(std::min(i * pieceSize, parts.item.size()), pieceSize);
        pieces[i] = {data.size(), piece.size()};
        data += piece + "--";
    }
    if (parts.constructionMethod == 1)
        return fileType + MetaBox(parts, pieces, data) + Box("mdat", "picture");

    const std::size_t dataOffset = fileType.size() + MetaBox(parts, pieces, {}).size() + 8;
    for (Piece& piece : pieces)
        piece.offset += dataOffset;
    return fileType + MetaBox(parts, pieces, {}) + Box("mdat", data);
}

Bytes BuildCr3(const PictureFacts& facts)
{
    constexpr std::string_view canon("\x85\xC0\xB6\x87\x82\x0F\x11\xE0\x81\x11\xF4\xCE\x46\x2B\x6A\x48", 16);
    const TiffParts all = TiffPartsOf(facts);
    TiffParts image = all;
    image.exif.clear();
    TiffParts exif = all;
    exif.image = exif.exif;
    exif.exif.clear();
    const Bytes boxes =
        Box("CNCV", "CanonCR3_001/00.09.00/00.00.00") + Box("CMT1", BuildTiff(image)) + Box("CMT2", BuildTiff(exif));
    return Box("ftyp", "crx " + Big(1, 4) + "crx isom") + Box("moov", Box("uuid", Bytes(canon) + boxes)) +
           LongBox("mdat", "picture");
}

Bytes BuildJpegXl(std::string_view boxes)
{
    // The codestream of a picture of 8 by 8 points begins so; nothing reads further.
    constexpr std::string_view codestream("\xFF\x0A\x00\x10", 4);
    return Box("JXL ", "\r\n\x87\n") + Box("ftyp", "jxl " + Big(0, 4) + "jxl ") + Bytes(boxes) +
           Box("jxlc", codestream);
}

Bytes BrotliBox(std::string_view type, std::string_view content)
{
    // RFC 7932, section 9: a window of 64 KiB (one zero bit), then one stored block: not the last (0), a length of four
    // nibbles (00) less one (16 bits), stored (1), from the next byte on; then an empty last block (1, 1).
    const std::uint64_t header = (content.size() - 1) << 4 | std::uint64_t{1} << 20;
    return Box("brob", Bytes(type) + Number(header, 3, Endian::Little) + Bytes(content) + '\x03');
}

Bytes BuildRaf(std::string_view jpeg)
{
    constexpr std::size_t jpegOffset = 148;
    Bytes header = "FUJIFILMCCD-RAW 0201FF389501Testmodel";
    header.resize(60);
    header += "0100";
    header.resize(84);
    header += Big(jpegOffset, 4) + Big(jpeg.size(), 4);
    header.resize(jpegOffset);
    return header + Bytes(jpeg);
}

std::vector<FormatSample> BuildEveryFormat(const PictureFacts& facts)
{
    const Bytes tiff = BuildTiff(facts);
    const auto tiffWith = [&facts](Endian endian, std::string_view signature, std::string_view afterHeader = {}) {
        PictureFacts ordered = facts;
        ordered.endian = endian;
        TiffParts parts = TiffPartsOf(ordered);
        parts.signature = signature;
        parts.afterHeader = afterHeader;
        return BuildTiff(parts);
    };
    TiffParts dng = TiffPartsOf(facts);
    dng.image.push_back({0xC612, 1, 4, Bytes("\1\4\0\0", 4)});
    const Bytes item = ExifItem(tiff);
    return {
        {"picture.jpg", BuildJpeg(facts)},
        {"picture.tif", tiff},
        {"picture.png", BuildPng(PngChunk("eXIf", tiff))},
        {"after-data.png", BuildPng({}, PngChunk("eXIf", tiff))},
        {"text.png", BuildPng(PngChunk("tEXt", Bytes("Raw profile type exif\0", 22) + RawProfile(tiff)))},
        {"packed-text.png",
         BuildPng(PngChunk("zTXt", Bytes("Raw profile type APP1\0\0", 23) + ZlibStored(RawProfile(tiff))))},
        {"picture.webp", BuildWebP(RiffChunk("EXIF", tiff))},
        {"picture.heic", BuildHeif({.item = item})},
        {"pieces.heic", BuildHeif({.item = item, .pieces = 3})},
        {"picture.heif", BuildHeif({.brand = "mif1", .item = item, .locationVersion = 2, .entryVersion = 3})},
        {"picture.avif", BuildHeif({.brand = "avif", .item = Big(0, 4) + tiff, .locationVersion = 0})},
        {"picture.cr3", BuildCr3(facts)},
        {"picture.jxl", BuildJpegXl(Box("Exif", Big(0, 4) + tiff))},
        {"picture.raf", BuildRaf(BuildJpeg(facts))},
        {"picture.dng", BuildTiff(dng)},
        {"picture.cr2", tiffWith(Endian::Little, {}, std::string_view("CR\2\0\0\0\0\0", 8))},
        {"picture.nef", tiffWith(Endian::Big, {})},
        {"picture.arw", tiffWith(Endian::Little, {})},
        {"picture.pef", tiffWith(Endian::Big, {})},
        {"picture.orf", tiffWith(Endian::Little, "IIRO")},
        {"other.orf", tiffWith(Endian::Little, "IIRS")},
        {"big-endian.orf", tiffWith(Endian::Big, "MMOR")},
        {"picture.rw2", tiffWith(Endian::Little, std::string_view("IIU\0", 4))},
    };
}

} // namespace VyrTests
