// Any bytes as a picture with tags and a packet of XMP: dates are possible, and texts are clean and bounded.
#include <VyrHost/media/ContentKind.h>
#include <VyrHost/media/ExifTags.h>
#include <VyrHost/media/PictureDates.h>
#include <VyrLibraryUtils/pictures/Picture.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace VyrHost::Media;
namespace Pictures = VyrLibraryUtils::Pictures;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckText(const CString& text)
{
    constexpr int longest = 4096;
    const std::u16string_view units = text;
    Require(std::none_of(units.begin(), units.end(), [](char16_t unit) { return unit < u' '; }));
    Require(text.GetLength() <= longest);
}

void CheckDate(const std::optional<PictureDate>& date)
{
    Require(!date || date->dateTime.GetStatus() == COleDateTime::valid);
    Require(!date || !date->Instant() || *date->Instant() >= 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    Pictures::MemorySource source(bytes);
    // Bytes that are no picture serve as the packet itself.
    const std::string inPicture = Pictures::ReadPicture(source, Pictures::PictureTag::Xmp);
    const std::string_view packet = inPicture.empty() ? bytes : std::string_view(inPicture);
    ExifTagReader reader(source, packet);
    for (std::size_t tag = 0; tag < exifTagCount; ++tag)
        CheckText(reader.Read(static_cast<ExifTag>(tag)));
    CheckDate(ReadTaken(source));
    CheckDate(ReadDigitized(source));
    CheckDate(ReadXmpDate(packet));
    return 0;
}
