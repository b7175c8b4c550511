// Skips the chunks of a RIFF file up to the one with the Exif tags.
#include <VyrLibraryUtils/pictures/Riff.h>

#include <VyrLibraryUtils/pictures/Exif.h>

namespace VyrLibraryUtils::Pictures {
namespace {

constexpr std::uint64_t headerSize = 12;
constexpr std::uint64_t formOffset = 8;
/// More chunks than any animation has frames. A gap of zeros in a damaged file looks like empty chunks; this bounds the
/// search in a file of zeros.
constexpr int mostChunks = 100000;

} // namespace

bool IsWebP(const ByteView& bytes)
{
    return bytes.StartsWith("RIFF") && bytes.From(formOffset).StartsWith("WEBP");
}

std::string ReadWebP(const ByteView& webp, PictureTag tag)
{
    ByteCursor cursor(webp.From(headerSize), ByteOrder::Little);
    for (int left = mostChunks; left > 0 && !cursor.Failed(); --left) {
        const std::string_view name = cursor.Bytes(4);
        const bool isExif = name == "EXIF";
        const bool isXmp = tag == PictureTag::Xmp && name == "XMP ";
        const std::uint32_t size = cursor.U32();
        const ByteView chunk = cursor.Take(size);
        if (isXmp)
            return chunk.Copy(longestXmp);
        std::string text = isExif ? ReadExif(chunk, tag) : std::string();
        if (!text.empty())
            return text;
        cursor.Skip(size % 2);
    }
    return {};
}

} // namespace VyrLibraryUtils::Pictures
