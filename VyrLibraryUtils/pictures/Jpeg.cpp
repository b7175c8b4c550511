// Steps over the segments of a JPEG until one holds the Exif tags.
#include <VyrLibraryUtils/pictures/Jpeg.h>

#include <VyrLibraryUtils/pictures/Tiff.h>

namespace VyrLibraryUtils::Pictures {
namespace {

constexpr std::uint8_t MarkerPrefix = 0xFF;
constexpr std::uint8_t Temporary = 0x01;
constexpr std::uint8_t FirstRestart = 0xD0;
constexpr std::uint8_t StartOfImage = 0xD8;
constexpr std::uint8_t EndOfImage = 0xD9;
constexpr std::uint8_t StartOfScan = 0xDA;
constexpr std::uint8_t ExifSegment = 0xE1;
constexpr std::string_view ExifIdentifier("Exif\0", 5);
/// The identifier and one more byte, which writers leave at will.
constexpr std::uint64_t ExifHeaderSize = 6;
/// More than any writer leaves; a rescued file that is nothing but fill bytes ends here.
constexpr int MostBytesBetweenSegments = 4096;

bool StandsAlone(std::uint8_t marker)
{
    return marker == Temporary || (marker >= FirstRestart && marker <= StartOfImage);
}

bool EndsHeader(std::uint8_t marker)
{
    return marker == StartOfScan || marker == EndOfImage;
}

/// The next marker; EndOfImage where there is none. Fill bytes before it are passed over, and so is what a careless
/// writer left between two segments.
std::uint8_t NextMarker(ByteCursor& jpeg)
{
    bool isPrefixed = false;
    for (int left = MostBytesBetweenSegments; left > 0 && !jpeg.Failed(); --left) {
        const std::uint8_t byte = jpeg.U8();
        if (isPrefixed && byte != MarkerPrefix && byte != 0)
            return byte;
        isPrefixed = byte == MarkerPrefix;
    }
    return EndOfImage;
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
        if (marker != ExifSegment || !segment.StartsWith(ExifIdentifier))
            continue;
        std::string text = ReadTiff(segment.From(ExifHeaderSize), tag);
        if (!text.empty())
            return text;
    }
    return {};
}

} // namespace VyrLibraryUtils::Pictures
