// Any bytes as a picture: every text is short, trimmed, and read within its bounds.
#include <VyrLibraryUtils/pictures/Picture.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using VyrLibraryUtils::Pictures::PictureTag;
using VyrLibraryUtils::Pictures::ReadPictureBytes;

void Check(std::string_view picture, PictureTag tag)
{
    constexpr std::size_t longestText = 65535;
    constexpr std::string_view trailing(" \t\r\n\0", 5);
    const std::string text = ReadPictureBytes(picture, tag);
    const bool isTrimmed = text.empty() || trailing.find(text.back()) == std::string_view::npos;
    if (text.size() > longestText || !isTrimmed || text.find('\0') != std::string::npos)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view picture(reinterpret_cast<const char*>(data), size);
    Check(picture, PictureTag::DateTimeOriginal);
    Check(picture, PictureTag::Make);
    Check(picture, PictureTag::Model);
    return 0;
}
