// Finds the format of a picture by its first bytes and calls the reader of that format.
#include <VyrLibraryUtils/pictures/Picture.h>

#include <VyrLibraryUtils/pictures/IsoMedia.h>
#include <VyrLibraryUtils/pictures/Jpeg.h>
#include <VyrLibraryUtils/pictures/JpegXl.h>
#include <VyrLibraryUtils/pictures/Png.h>
#include <VyrLibraryUtils/pictures/Raf.h>
#include <VyrLibraryUtils/pictures/Riff.h>
#include <VyrLibraryUtils/pictures/Tiff.h>

namespace VyrLibraryUtils::Pictures {
namespace {

/// JPEG segments without a picture.
constexpr std::string_view bareSegments = "\xFF\x01"
                                          "Exiv2";
constexpr std::string_view pngSignature = "\x89PNG\r\n\x1A\n";
constexpr std::string_view JpegXlSignature("\0\0\0\x0CJXL \r\n\x87\n", 12);
constexpr std::string_view rafSignature = "FUJIFILMCCD-RAW ";
constexpr std::uint64_t firstBoxType = 4;

} // namespace

std::string ReadPicture(ByteSource& source, PictureTag tag)
{
    const ByteView picture(source);
    if (IsJpeg(picture))
        return ReadJpeg(picture, tag);
    if (IsTiff(picture))
        return ReadTiff(picture, tag);
    if (picture.From(firstBoxType).StartsWith("ftyp"))
        return ReadIsoMedia(picture, tag);
    if (picture.StartsWith(pngSignature))
        return ReadPng(picture, tag);
    if (IsWebP(picture))
        return ReadWebP(picture, tag);
    if (picture.StartsWith(rafSignature))
        return ReadRaf(picture, tag);
    if (picture.StartsWith(JpegXlSignature))
        return ReadJpegXl(picture, tag);
    if (picture.StartsWith(bareSegments))
        return ReadJpeg(picture.From(bareSegments.size()), tag);
    return {};
}

std::string ReadPictureBytes(std::string_view bytes, PictureTag tag)
{
    MemorySource source(bytes);
    return ReadPicture(source, tag);
}

} // namespace VyrLibraryUtils::Pictures
