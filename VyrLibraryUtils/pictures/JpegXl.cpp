// Skips the boxes of a JPEG XL container up to the one with the Exif tags.
#include <VyrLibraryUtils/pictures/JpegXl.h>

#include <VyrLibraryUtils/pictures/Exif.h>
#include <VyrLibraryUtils/pictures/FourCc.h>
#include <VyrLibraryUtils/pictures/IsoBox.h>
#include <VyrPlatform/documents/Brotli.h>

#include <optional>

namespace VyrLibraryUtils::Pictures {
namespace {

/// A few bytes can unpack to a megabyte: this bounds the work on a hostile file.
constexpr int mostPackedBoxes = 4;

/// A packed box begins with the type of the box that it packs.
bool IsPackedExif(const IsoBox& box)
{
    return box.type == FourCc("brob") && box.content.StartsWith("Exif");
}

std::string ReadPackedBox(const ByteView& box, PictureTag tag)
{
    constexpr std::uint64_t typeSize = 4;
    const std::string unpacked = VyrPlatform::Brotli::Unpack(box.From(typeSize).Copy(longestExif), longestExif);
    MemorySource source(unpacked);
    return ReadExifItem(ByteView(source), tag);
}

} // namespace

std::string ReadJpegXl(const ByteView& jpegXl, PictureTag tag)
{
    ByteCursor cursor(jpegXl, ByteOrder::Big);
    int packedLeft = mostPackedBoxes;
    while (const std::optional<IsoBox> box = NextBox(cursor)) {
        std::string text;
        if (tag == PictureTag::Xmp)
            text = box->type == FourCc("xml ") ? box->content.Copy(longestXmp) : std::string();
        else if (box->type == FourCc("Exif"))
            text = ReadExifItem(box->content, tag);
        else if (IsPackedExif(*box) && packedLeft-- > 0)
            text = ReadPackedBox(box->content, tag);
        if (!text.empty())
            return text;
    }
    return {};
}

} // namespace VyrLibraryUtils::Pictures
