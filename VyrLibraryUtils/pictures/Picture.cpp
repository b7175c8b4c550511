// Tells a picture's format by its first bytes and hands it to that format's reader.
#include <VyrLibraryUtils/pictures/Picture.h>

#include <VyrLibraryUtils/pictures/Jpeg.h>
#include <VyrLibraryUtils/pictures/Tiff.h>

namespace VyrLibraryUtils::Pictures {

std::string ReadPicture(ByteSource& source, PictureTag tag)
{
    const ByteView picture(source);
    if (picture.StartsWith("\xFF\xD8\xFF"))
        return ReadJpeg(picture, tag);
    if (IsTiff(picture))
        return ReadTiff(picture, tag);
    return {};
}

std::string ReadPictureBytes(std::string_view bytes, PictureTag tag)
{
    MemorySource source(bytes);
    return ReadPicture(source, tag);
}

} // namespace VyrLibraryUtils::Pictures
