// Any bytes as a picture: every text is short, trimmed, and read within its bounds, a thumbnail is a JPEG of bounded
// size, and no size has a width or a height of 0.
#include <VyrLibraryUtils/pictures/Picture.h>
#include <VyrLibraryUtils/pictures/PictureSize.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using VyrLibraryUtils::Pictures::PictureTag;
using VyrLibraryUtils::Pictures::ReadPictureBytes;
using VyrLibraryUtils::Pictures::ReadPictureSizeOf;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckText(std::string_view picture, PictureTag tag)
{
    constexpr std::size_t longestText = 65535;
    constexpr std::string_view trailing(" \t\r\n\0", 5);
    const std::string text = ReadPictureBytes(picture, tag);
    Require(text.empty() || trailing.find(text.back()) == std::string_view::npos);
    Require(text.size() <= longestText && text.find('\0') == std::string::npos);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view picture(reinterpret_cast<const char*>(data), size);
    CheckText(picture, PictureTag::DateTimeOriginal);
    CheckText(picture, PictureTag::Make);
    CheckText(picture, PictureTag::Model);
    CheckText(picture, PictureTag::Orientation);
    const std::string thumbnail = ReadPictureBytes(picture, PictureTag::Thumbnail);
    Require(thumbnail.empty() || (thumbnail.starts_with("\xFF\xD8\xFF") && thumbnail.size() <= 65536));
    const auto points = ReadPictureSizeOf(picture);
    Require(!points || (points->width > 0 && points->height > 0));
    return 0;
}
