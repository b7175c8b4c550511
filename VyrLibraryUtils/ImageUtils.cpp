// The published operations over the picture readers.
#include <VyrLibraryUtils/ImageUtils.h>

#include <VyrLibraryUtils/pictures/Picture.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

namespace VyrLibraryUtils {
namespace {

using Pictures::PictureTag;

bool IsAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

CString FromLatin1(std::string_view bytes)
{
    std::u16string text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return static_cast<unsigned char>(byte); });
    return CString(text);
}

CString ToText(std::string_view bytes)
{
    const CString text = VyrPlatform::Encoding::FromUtf8(bytes);
    // Bytes that are not UTF-8 do not survive the conversion.
    const bool isUtf8 = IsAscii(bytes) || VyrPlatform::Encoding::ToUtf8(text) == bytes;
    return isUtf8 ? text : FromLatin1(bytes);
}

CString ReadTag(const CString& path, PictureTag tag)
{
    std::array<char, Pictures::FileSource::beginningSize> beginning;
    const VyrPlatform::FileReader file(path, std::as_writable_bytes(std::span(beginning)));
    Pictures::FileSource source(file, std::string_view(beginning.data(), file.BeginningSize()));
    return ToText(Pictures::ReadPicture(source, tag));
}

} // namespace

ImageUtils::ImageUtils() = default;
ImageUtils::~ImageUtils() = default;
ImageUtils& ImageUtils::operator=(const ImageUtils&) = default;

CString ImageUtils::GetPropertyTagExifDTOrig(CString path)
{
    return ReadTag(path, PictureTag::DateTimeOriginal);
}

CString ImageUtils::GetEquipMake(CString path)
{
    return ReadTag(path, PictureTag::Make);
}

CString ImageUtils::GetEquipModel(CString path)
{
    return ReadTag(path, PictureTag::Model);
}

} // namespace VyrLibraryUtils
