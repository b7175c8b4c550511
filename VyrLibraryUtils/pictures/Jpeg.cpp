// Skips the segments of a JPEG up to the one with the Exif tags, or with the size.
#include <VyrLibraryUtils/pictures/Jpeg.h>

#include <VyrLibraryUtils/pictures/Exif.h>
#include <VyrLibraryUtils/pictures/Tiff.h>

#include <optional>

namespace VyrLibraryUtils::Pictures {
namespace {

constexpr std::uint8_t markerPrefix = 0xFF;
constexpr std::uint8_t temporary = 0x01;
constexpr std::uint8_t firstRestart = 0xD0;
constexpr std::uint8_t startOfImage = 0xD8;
constexpr std::uint8_t endOfImage = 0xD9;
constexpr std::uint8_t startOfScan = 0xDA;
/// Exif, and packets of XMP.
constexpr std::uint8_t applicationSegment = 0xE1;
constexpr std::string_view exifIdentifier("Exif\0", 5);
constexpr std::string_view xmpIdentifier("http://ns.adobe.com/xap/1.0/\0", 29);
/// The identifier and one byte of padding, whose value varies.
constexpr std::uint64_t exifHeaderSize = 6;
/// More than any writer leaves. It bounds the search in a recovered file that holds only fill bytes.
constexpr int mostBytesBetweenSegments = 4096;

bool StandsAlone(std::uint8_t marker)
{
    return marker == temporary || (marker >= firstRestart && marker <= startOfImage);
}

bool EndsHeader(std::uint8_t marker)
{
    return marker == startOfScan || marker == endOfImage;
}

/// The next marker; endOfImage where there is none. Skips fill bytes, and stray bytes that some writers leave between
/// two segments.
std::uint8_t NextMarker(ByteCursor& jpeg)
{
    bool isPrefixed = false;
    for (int left = mostBytesBetweenSegments; left > 0 && !jpeg.Failed(); --left) {
        const std::uint8_t byte = jpeg.U8();
        if (isPrefixed && byte != markerPrefix && byte != 0)
            return byte;
        isPrefixed = byte == markerPrefix;
    }
    return endOfImage;
}

/// Frame headers: C0 to CF, except three other segments among them.
bool IsFrame(std::uint8_t marker)
{
    constexpr std::uint8_t huffmanTables = 0xC4;
    constexpr std::uint8_t extensions = 0xC8;
    constexpr std::uint8_t arithmeticConditions = 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != extensions &&
           marker != arithmeticConditions;
}

struct Segment
{
    std::uint8_t marker;
    ByteView content;
};

/// The next segment before the picture's data; nothing where there is none, or its length is impossible.
std::optional<Segment> NextSegment(ByteCursor& jpeg)
{
    std::uint8_t marker = NextMarker(jpeg);
    while (StandsAlone(marker))
        marker = NextMarker(jpeg);
    if (EndsHeader(marker))
        return std::nullopt;
    const std::uint16_t length = jpeg.U16();
    if (length < 2)
        return std::nullopt;
    return Segment{marker, jpeg.Take(length - 2u)};
}

} // namespace

bool IsJpeg(const ByteView& bytes)
{
    return bytes.StartsWith("\xFF\xD8\xFF");
}

std::string ReadJpeg(const ByteView& jpeg, PictureTag tag)
{
    ByteCursor cursor(jpeg, ByteOrder::Big);
    while (const std::optional<Segment> segment = NextSegment(cursor)) {
        if (segment->marker != applicationSegment)
            continue;
        if (tag == PictureTag::Xmp && segment->content.StartsWith(xmpIdentifier))
            return segment->content.From(xmpIdentifier.size()).Copy(longestXmp);
        if (!segment->content.StartsWith(exifIdentifier))
            continue;
        std::string text = ReadTiff(segment->content.From(exifHeaderSize), tag);
        if (!text.empty())
            return text;
    }
    return {};
}

PictureSize ReadJpegSize(const ByteView& jpeg)
{
    ByteCursor cursor(jpeg, ByteOrder::Big);
    while (const std::optional<Segment> segment = NextSegment(cursor)) {
        if (!IsFrame(segment->marker))
            continue;
        ByteCursor frame(segment->content, ByteOrder::Big);
        frame.Skip(1);
        const std::uint32_t height = frame.U16();
        return {frame.U16(), height};
    }
    return {};
}

} // namespace VyrLibraryUtils::Pictures
