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
/// More than any writer leaves; a lost file that was filled with this byte ends here.
constexpr int MostFillBytes = 4096;

bool StandsAlone(std::uint8_t marker)
{
    return marker == Temporary || (marker >= FirstRestart && marker <= StartOfImage);
}

bool EndsHeader(std::uint8_t marker)
{
    return marker == StartOfScan || marker == EndOfImage;
}

/// The next marker, fill bytes before it passed over; EndOfImage where there is none.
std::uint8_t NextMarker(ByteCursor& jpeg)
{
    if (jpeg.U8() != MarkerPrefix)
        return EndOfImage;
    std::uint8_t marker = MarkerPrefix;
    for (int left = MostFillBytes; marker == MarkerPrefix && left > 0; --left)
        marker = jpeg.U8();
    return jpeg.Failed() || marker == MarkerPrefix ? EndOfImage : marker;
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
