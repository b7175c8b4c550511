// Skips the segments of a JPEG up to the one with the Exif tags.
#include <VyrLibraryUtils/pictures/Jpeg.h>

#include <VyrLibraryUtils/pictures/Tiff.h>

namespace VyrLibraryUtils::Pictures {
namespace {

constexpr std::uint8_t markerPrefix = 0xFF;
constexpr std::uint8_t temporary = 0x01;
constexpr std::uint8_t firstRestart = 0xD0;
constexpr std::uint8_t startOfImage = 0xD8;
constexpr std::uint8_t endOfImage = 0xD9;
constexpr std::uint8_t startOfScan = 0xDA;
constexpr std::uint8_t exifSegment = 0xE1;
constexpr std::string_view exifIdentifier("Exif\0", 5);
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

} // namespace

bool IsJpeg(const ByteView& bytes)
{
    return bytes.StartsWith("\xFF\xD8\xFF");
}

std::string ReadJpeg(const ByteView& jpeg, PictureTag tag)
{
    ByteCursor cursor(jpeg, ByteOrder::Big);
    for (std::uint8_t marker = NextMarker(cursor); !EndsHeader(marker); marker = NextMarker(cursor)) {
        if (StandsAlone(marker))
            continue;
        const std::uint16_t length = cursor.U16();
        if (length < 2)
            break;
        const ByteView segment = cursor.Take(length - 2u);
        if (marker != exifSegment || !segment.StartsWith(exifIdentifier))
            continue;
        std::string text = ReadTiff(segment.From(exifHeaderSize), tag);
        if (!text.empty())
            return text;
    }
    return {};
}

} // namespace VyrLibraryUtils::Pictures
