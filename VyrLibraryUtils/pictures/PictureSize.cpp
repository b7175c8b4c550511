// Reads the sizes of pictures from their headers.
#include <VyrLibraryUtils/pictures/PictureSize.h>

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/Jpeg.h>
#include <VyrLibraryUtils/pictures/Riff.h>

#include <cstdlib>

namespace VyrLibraryUtils::Pictures {
namespace {

PictureSize ReadPngSize(const ByteView& png)
{
    constexpr std::uint64_t sizeField = 16;
    ByteCursor cursor(png.From(sizeField), ByteOrder::Big);
    const std::uint32_t width = cursor.U32();
    return {width, cursor.U32()};
}

PictureSize ReadGifSize(const ByteView& gif)
{
    constexpr std::uint64_t sizeField = 6;
    ByteCursor cursor(gif.From(sizeField), ByteOrder::Little);
    const std::uint32_t width = cursor.U16();
    return {width, cursor.U16()};
}

PictureSize ReadBmpSize(const ByteView& bmp)
{
    constexpr std::uint64_t headerField = 14;
    constexpr std::uint32_t oldHeaderSize = 12;
    ByteCursor cursor(bmp.From(headerField), ByteOrder::Little);
    if (cursor.U32() == oldHeaderSize) {
        const std::uint32_t width = cursor.U16();
        return {width, cursor.U16()};
    }
    // A picture stored from top to bottom has a negative height.
    const auto width = static_cast<std::int32_t>(cursor.U32());
    const auto height = static_cast<std::int32_t>(cursor.U32());
    const bool isSound = width > 0 && height != INT32_MIN;
    return isSound ? PictureSize{static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(std::abs(height))}
                   : PictureSize{};
}

/// The size in the first chunk: extended, lossless or lossy.
PictureSize ReadWebPSize(const ByteView& webP)
{
    constexpr std::uint64_t firstChunk = 12;
    constexpr std::uint64_t chunkHeader = 8;
    const ByteView chunk = webP.From(firstChunk);
    ByteCursor cursor(chunk.From(chunkHeader), ByteOrder::Little);
    if (chunk.StartsWith("VP8X")) {
        cursor.Skip(4);
        const auto width = static_cast<std::uint32_t>(cursor.Unsigned(3));
        const auto height = static_cast<std::uint32_t>(cursor.Unsigned(3));
        return cursor.Failed() ? PictureSize{} : PictureSize{width + 1, height + 1};
    }
    constexpr std::uint32_t fourteenBits = 0x3FFF;
    if (chunk.StartsWith("VP8L")) {
        constexpr std::uint8_t signature = 0x2F;
        const bool isSound = cursor.U8() == signature;
        const std::uint32_t bits = cursor.U32();
        return isSound && !cursor.Failed() ? PictureSize{(bits & fourteenBits) + 1, (bits >> 14 & fourteenBits) + 1}
                                           : PictureSize{};
    }
    if (!chunk.StartsWith("VP8 "))
        return {};
    constexpr std::uint64_t frameTag = 3;
    cursor.Skip(frameTag);
    if (cursor.Bytes(3) != "\x9D\x01\x2A")
        return {};
    const std::uint32_t width = cursor.U16() & fourteenBits;
    return {width, cursor.U16() & fourteenBits};
}

PictureSize ReadSize(const ByteView& picture)
{
    if (IsJpeg(picture))
        return ReadJpegSize(picture);
    if (picture.StartsWith("\x89PNG\r\n\x1A\n"))
        return ReadPngSize(picture);
    if (picture.StartsWith("GIF8"))
        return ReadGifSize(picture);
    if (IsWebP(picture))
        return ReadWebPSize(picture);
    if (picture.StartsWith("BM"))
        return ReadBmpSize(picture);
    return {};
}

} // namespace

std::optional<PictureSize> ReadPictureSize(ByteSource& source)
{
    const PictureSize size = ReadSize(ByteView(source));
    return size.width > 0 && size.height > 0 ? std::optional(size) : std::nullopt;
}

std::optional<PictureSize> ReadPictureSizeOf(std::string_view bytes)
{
    MemorySource source(bytes);
    return ReadPictureSize(source);
}

} // namespace VyrLibraryUtils::Pictures
