#include <VyrHost/media/PictureSizes.h>

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/FourCc.h>
#include <VyrLibraryUtils/pictures/IsoBox.h>
#include <VyrLibraryUtils/pictures/Picture.h>

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

namespace VyrHost::Media {

namespace {

using namespace VyrLibraryUtils::Pictures;
using namespace std::string_view_literals;

std::uint32_t NumberOfTag(ByteSource& source, PictureTag tag)
{
    const std::string digits = ReadPicture(source, AsNumbers(tag));
    std::uint32_t value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

/// The first directory of a raw picture may describe a preview; a tag says so.
PictureSize ReadTiffSize(ByteSource& source)
{
    constexpr std::uint16_t kind = 0x00FE;
    const bool isPreview = (NumberOfTag(source, ImageTag(kind)) & 1) != 0;
    if (isPreview)
        return {NumberOfTag(source, ExifTag(0xA002)), NumberOfTag(source, ExifTag(0xA003))};
    return {NumberOfTag(source, ImageTag(0x0100)), NumberOfTag(source, ImageTag(0x0101))};
}

/// The area within the borders of the sensor: top, left, bottom, right.
PictureSize ReadRw2Size(ByteSource& source)
{
    const auto border = [&source](std::uint16_t number) {
        return NumberOfTag(source, ImageTag(number));
    };
    const std::uint32_t top = border(4);
    const std::uint32_t left = border(5);
    const std::uint32_t bottom = border(6);
    const std::uint32_t right = border(7);
    return right > left && bottom > top ? PictureSize{right - left, bottom - top} : PictureSize{};
}

PictureSize ReadRafSize(const ByteView& raf)
{
    constexpr std::uint64_t jpegField = 84;
    constexpr std::size_t beforeItsSize = std::size_t{1} << 18;
    ByteCursor cursor(raf.From(jpegField), ByteOrder::Big);
    const std::uint32_t offset = cursor.U32();
    const std::uint32_t length = cursor.U32();
    return ReadPictureSizeOf(raf.Part(offset, length).Copy(beforeItsSize)).value_or(PictureSize{});
}

PictureSize ReadPsdSize(const ByteView& psd)
{
    constexpr std::uint64_t heightField = 14;
    ByteCursor cursor(psd.From(heightField), ByteOrder::Big);
    const std::uint32_t height = cursor.U32();
    return {cursor.U32(), height};
}

/// Reads bits, the lowest of each byte first; 0 after the last one.
class Bits
{
public:
    explicit Bits(std::string_view bytes) : m_bytes(bytes) {}

    std::uint32_t Take(std::size_t count)
    {
        std::uint32_t value = 0;
        for (std::size_t bit = 0; bit < count; ++bit, ++m_at) {
            const std::size_t byte = m_at / 8;
            const auto unit = byte < m_bytes.size() ? static_cast<unsigned char>(m_bytes[byte]) : 0U;
            value |= (unit >> m_at % 8 & 1U) << bit;
        }
        return value;
    }

private:
    std::string_view m_bytes;
    std::size_t m_at = 0;
};

std::uint32_t TakeLength(Bits& bits, bool isSmall)
{
    if (isSmall)
        return (bits.Take(5) + 1) * 8;
    constexpr std::size_t widths[] = {9, 13, 18, 30};
    const std::size_t width = widths[bits.Take(2)];
    return bits.Take(width) + 1;
}

/// The header of a codestream after its signature.
PictureSize ReadStreamSize(const ByteView& stream)
{
    constexpr auto mark = "\xFF\x0A"sv;
    constexpr std::size_t mostBytes = 9;
    if (!stream.StartsWith(mark))
        return {};
    const std::string head = stream.From(mark.size()).Copy(mostBytes);
    Bits bits(head);
    const bool isSmall = bits.Take(1) != 0;
    const std::uint32_t height = TakeLength(bits, isSmall);
    // The ratio of width to height; without one the width itself follows.
    struct Ratio
    {
        std::uint64_t width;
        std::uint64_t height;
    };
    constexpr Ratio ratios[] = {{0, 1}, {1, 1}, {12, 10}, {4, 3}, {3, 2}, {16, 9}, {5, 4}, {2, 1}};
    const Ratio& ratio = ratios[bits.Take(3)];
    const std::uint32_t width =
        ratio.width == 0 ? TakeLength(bits, isSmall) : static_cast<std::uint32_t>(height * ratio.width / ratio.height);
    return {width, height};
}

/// The size of the codestream, or of its first part, in a container.
PictureSize ReadBoxedStreamSize(const ByteView& file)
{
    constexpr int mostBoxes = 1000;
    ByteCursor cursor(file, ByteOrder::Big);
    for (int left = mostBoxes; left > 0; --left) {
        const std::optional<IsoBox> box = NextBox(cursor);
        if (!box)
            break;
        if (box->type == FourCc("jxlc"))
            return ReadStreamSize(box->content);
        constexpr std::uint64_t partNumber = 4;
        if (box->type == FourCc("jxlp"))
            return ReadStreamSize(box->content.From(partNumber));
    }
    return {};
}

PictureSize ReadSize(ByteSource& source)
{
    const ByteView picture(source);
    for (const auto signature : {"II*\0"sv, "MM\0*"sv, "IIRO"sv, "IIRS"sv, "MMOR"sv})
        if (picture.StartsWith(signature))
            return ReadTiffSize(source);
    if (picture.StartsWith("IIU\0"sv))
        return ReadRw2Size(source);
    if (picture.StartsWith("FUJIFILMCCD-RAW "))
        return ReadRafSize(picture);
    if (picture.StartsWith("8BPS"))
        return ReadPsdSize(picture);
    if (picture.StartsWith("\0\0\0\x0CJXL \r\n\x87\n"sv))
        return ReadBoxedStreamSize(picture);
    return ReadStreamSize(picture);
}

} // namespace

std::optional<PictureSize> ReadSizeOfPicture(ByteSource& source)
{
    if (const auto size = ReadPictureSize(source))
        return size;
    const PictureSize size = ReadSize(source);
    return size.width > 0 && size.height > 0 ? std::optional(size) : std::nullopt;
}

} // namespace VyrHost::Media
