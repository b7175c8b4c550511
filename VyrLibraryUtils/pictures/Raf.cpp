// Finds the JPEG in a RAF raw picture.
#include <VyrLibraryUtils/pictures/Raf.h>

#include <VyrLibraryUtils/pictures/Jpeg.h>

namespace VyrLibraryUtils::Pictures {

std::string ReadRaf(const ByteView& raf, PictureTag tag)
{
    constexpr std::uint64_t jpegOffsetField = 84;
    ByteCursor cursor(raf.From(jpegOffsetField), ByteOrder::Big);
    const std::uint32_t offset = cursor.U32();
    const std::uint32_t length = cursor.U32();
    const ByteView jpeg = raf.Part(offset, length);
    return IsJpeg(jpeg) ? ReadJpeg(jpeg, tag) : std::string();
}

} // namespace VyrLibraryUtils::Pictures
