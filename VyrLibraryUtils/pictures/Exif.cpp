// Removes the identifiers before an Exif block's TIFF structure.
#include <VyrLibraryUtils/pictures/Exif.h>

#include <VyrLibraryUtils/pictures/Tiff.h>

namespace VyrLibraryUtils::Pictures {
namespace {

constexpr std::string_view Identifier("Exif\0\0", 6);

ByteView WithoutIdentifier(const ByteView& block)
{
    return block.StartsWith(Identifier) ? block.From(Identifier.size()) : block;
}

} // namespace

std::string ReadExif(const ByteView& block, PictureTag tag)
{
    return ReadTiff(WithoutIdentifier(block), tag);
}

std::string ReadExifItem(const ByteView& item, PictureTag tag)
{
    ByteCursor cursor(item, ByteOrder::Big);
    cursor.Skip(cursor.U32());
    const ByteView block = WithoutIdentifier(cursor.Take(cursor.Remaining()));
    return IsTiff(block) ? ReadTiff(block, tag) : ReadExif(item, tag);
}

} // namespace VyrLibraryUtils::Pictures
