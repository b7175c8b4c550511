// Raw pictures are TIFF structures that differ in a few tags.
#include <VyrHost/media/ContentReaders.h>

#include <VyrLibraryUtils/pictures/Picture.h>

#include <string>

namespace VyrHost::Media {

using namespace VyrLibraryUtils::Pictures;

std::u16string_view KindOfTiff(ByteSource& file)
{
    constexpr std::uint64_t canonMark = 8;
    if (ByteView(file).From(canonMark).StartsWith("CR\x02"))
        return u"cr2";
    constexpr std::uint16_t dngVersion = 0xC612;
    constexpr std::uint16_t furtherDirectories = 0x014A;
    const auto has = [&file](PictureTag tag) {
        return !ReadPicture(file, tag).empty();
    };
    if (has(AsNumbers(ImageTag(dngVersion))))
        return u"dng";
    const std::string make = ReadPicture(file, PictureTag::Make);
    if (!has(AsNumbers(ImageTag(furtherDirectories))))
        return u"tif";
    if (make.starts_with("NIKON"))
        return u"nef";
    if (make.starts_with("SONY"))
        return u"arw";
    return make.starts_with("PENTAX") ? u"pef" : u"tif";
}

} // namespace VyrHost::Media
